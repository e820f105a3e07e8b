// Amounts of money with symbols or codes, before the number or after it, with scale words.

#include "rules.h"

namespace kavi::everyday {

namespace {

struct CurrencyRow {
    std::string_view written;
    const char* one;
    const char* many;
    const char* hundredth;  // null for none
    const char* hundredths;
};

// The longest first of those that begin alike.
constexpr CurrencyRow BEFORE[] = {
    {"US$", "US dollar", "US dollars", "cent", "cents"},
    {"A$", "Australian dollar", "Australian dollars", "cent", "cents"},
    {"C$", "Canadian dollar", "Canadian dollars", "cent", "cents"},
    {"CA$", "Canadian dollar", "Canadian dollars", "cent", "cents"},
    {"$", "dollar", "dollars", "cent", "cents"},
    {"€", "euro", "euros", "cent", "cents"},     // €
    {"£", "pound", "pounds", "penny", "pence"},  // £
    {"¥", "yen", "yen", nullptr, nullptr},       // ¥
    {"₹", "rupee", "rupees", "paisa", "paise"},  // ₹
};
constexpr CurrencyRow AFTER[] = {
    {"USD", "US dollar", "US dollars", "cent", "cents"},
    {"EUR", "euro", "euros", "cent", "cents"},
    {"GBP", "pound", "pounds", "penny", "pence"},
    {"$", "dollar", "dollars", "cent", "cents"},
    {"CHF", "Swiss franc", "Swiss francs", nullptr, nullptr},
    {"JPY", "yen", "yen", nullptr, nullptr},
    {"€", "euro", "euros", "cent", "cents"},
    {"£", "pound", "pounds", "penny", "pence"},
    {"¢", "cent", "cents", nullptr, nullptr},  // ¢
    {"¥", "yen", "yen", nullptr, nullptr},
    {"p", "penny", "pence", nullptr, nullptr},  // directly after the number
};

struct ScaleRow {
    std::string_view written;
    const char* spoken;
};
constexpr ScaleRow SCALES[] = {
    {"thousand", "thousand"}, {"million", "million"}, {"billion", "billion"},
    {"trillion", "trillion"}, {"bn", "billion"},      {"tn", "trillion"},
    {"mn", "million"},        {"k", "thousand"},      {"K", "thousand"},
    {"m", "million"},         {"M", "million"},       {"b", "billion"},
    {"B", "billion"},
};

// The scale so far on, with its length, past one blank; letters stand directly after the number.
const char* scale_at(const Place& place, std::size_t ahead, std::size_t& length) {
    const std::size_t blank = place.peek(ahead) == ' ' || place.peek(ahead) == '-' ? 1 : 0;
    const std::string_view word = place.letters(ahead + blank);
    for (const ScaleRow& row : SCALES) {
        if (word != row.written || (blank > 0 && word.size() < 3 && word != "bn")) continue;
        length = blank + word.size();
        return row.spoken;
    }
    length = 0;
    return nullptr;
}

// `symbol` is where the currency is written.
void say_amount(const Number& number, const char* scale, const CurrencyRow& currency,
                std::size_t symbol, Found& found) {
    const auto say_currency = [&](bool is_one) {
        found.say_name(symbol, currency.written.size(), is_one ? currency.one : currency.many);
    };
    const bool has_hundredths =
        scale == nullptr && number.fraction.size() == 2 && currency.hundredth != nullptr;
    if (!has_hundredths) {
        number.say(found.words);
        if (scale != nullptr) say(scale, found.words);
        return say_currency(number.is_one() && scale == nullptr);
    }
    const bool is_whole = number.fraction == "00";
    const bool has_whole = number.whole.find_first_not_of('0') != std::string::npos;
    if (has_whole || is_whole) {
        say_cardinal(number.whole, found.words);
        say_currency(number.whole == "1");
    } else {
        found.name = {symbol, currency.written.size(), 0, 0};
    }
    if (is_whole) return;
    if (has_whole) say("and", found.words);
    say_cardinal(number.fraction, found.words);
    say(number.fraction == "01" ? currency.hundredth : currency.hundredths, found.words);
}

}  // namespace

void read_currency(const Place& place, Found& found) {
    const std::size_t minus = place.peek() == '-' ? 1 : 0;
    const char begin_with = place.peek(minus);
    if (is_lower(begin_with)) return;
    for (const CurrencyRow& row : BEFORE) {
        if (!place.starts_with(row.written, minus)) continue;
        if (is_letter(place.before())) return;
        const std::size_t begin = minus + row.written.size();
        const Number number = number_at(place, begin);
        if (number.length == 0) continue;
        if (minus > 0) say("minus", found.words);
        std::size_t scale_length = 0;
        const std::size_t end = begin + number.length;
        // "$5-10 million": both are of the same.
        const std::size_t dash = place.dash(end);
        const std::size_t second_symbol =
            place.starts_with(row.written, end + dash) ? row.written.size() : 0;
        const Number second = dash > 0 ? number_at(place, end + dash + second_symbol) : Number{};
        if (second.length > 0) {
            const std::size_t second_end = end + dash + second_symbol + second.length;
            const char* scale = scale_at(place, second_end, scale_length);
            number.say(found.words);
            say("to", found.words);
            say_amount(second, scale, row, minus, found);
            found.length = second_end + scale_length;
            return;
        }
        const char* scale = scale_at(place, end, scale_length);
        found.length = end + scale_length;
        if (number.fraction.size() != 2 && place.is_before_noun(found.length)) {
            number.say(found.words);
            if (scale != nullptr) say(scale, found.words);
            found.say_name(minus, row.written.size(), row.one);
        } else {
            say_amount(number, scale, row, minus, found);
        }
        return;
    }
}

void read_amount_after(const Place& place, Found& found) {
    const Number number = number_at(place, 0);
    std::size_t scale_length = 0;
    const char* scale = scale_at(place, number.length, scale_length);
    const std::size_t end = number.length + scale_length;
    const std::size_t blank = place.peek(end) == ' ' ? 1 : 0;
    for (const CurrencyRow& row : AFTER) {
        if (!place.starts_with(row.written, end + blank)) continue;
        if (row.written == "p" && (blank > 0 || scale != nullptr)) continue;
        const std::size_t after = end + blank + row.written.size();
        if (place.is_joined(after)) continue;
        say_amount(number, scale, row, end + blank, found);
        found.length = after;
        return;
    }
}

}  // namespace kavi::everyday

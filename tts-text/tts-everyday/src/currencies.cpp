// Amounts of money with symbols or codes, before the number or after it, with scale words.

#include "rules.h"

namespace kavi::everyday {

namespace {

// The scale word at offset `ahead`, after at most one blank; null if none, and then `length` stays.
// `has_sign`: after "£5", the blank may be before a letter too, "£5 m".
const char* scale_at(const Cursor& cursor, std::size_t ahead, bool has_sign, std::size_t& length) {
    const std::size_t blank = cursor.peek(ahead) == ' ' || cursor.peek(ahead) == '-' ? 1 : 0;
    const std::string_view word = cursor.letters(ahead + blank);
    const Row* row = find(SCALES, word);
    if (row == nullptr || (blank > 0 && row->kind == Kind::glued && !has_sign)) return nullptr;
    length = blank + word.size();
    return row->spoken().data();
}

// `symbol` is where the currency is written.
void say_amount(const Number& number, const char* scale, const Row& currency, std::size_t symbol,
                Found& found) {
    const auto say_currency = [&](bool is_one) {
        found.say_name(symbol, currency.written().size(),
                       is_one ? currency.spoken() : currency.many());
    };
    const bool may_have_coins = scale == nullptr && number.fraction.size() == 2;
    const Row* coin = may_have_coins ? find(HUNDREDTHS, currency.spoken()) : nullptr;
    if (coin == nullptr) {
        number.say(found.words);
        if (scale != nullptr) say(scale, found.words);
        return say_currency(number.is_one() && scale == nullptr);
    }
    const bool is_whole = number.fraction == "00";
    const bool has_whole = number.whole.find_first_not_of("0,") != std::string::npos;
    if (has_whole || is_whole) {
        say_cardinal(number.digits(), found.words);
        say_currency(number.whole == "1");
    } else {
        found.name = {symbol, currency.written().size(), 0, 0};
    }
    if (is_whole) return;
    if (has_whole) say("and", found.words);
    say_cardinal(number.fraction, found.words);
    say(number.fraction == "01" ? coin->spoken() : coin->many(), found.words);
}

// A code before its amount, "USD 10 million", "EUR45"; its row, or null.
const Row* code_before(const Cursor& cursor) {
    const std::string_view code = cursor.letters();
    if (code.size() != 3 || cursor.is_joined_before()) return nullptr;
    const Row* row = find(CURRENCIES, code);
    return row != nullptr && is_digit(cursor.peek(3 + cursor.blanks(3))) ? row : nullptr;
}

// An amount, which may have a decimal comma: "€3,50".
Number amount_at(const Cursor& cursor, std::size_t ahead) {
    Number number = number_at(cursor, ahead);
    const std::size_t comma = ahead + number.length;
    if (number.length == 0 || !number.fraction.empty() || cursor.peek(comma) != ',') return number;
    const std::string_view coins = cursor.digits(comma + 1);
    if (coins.size() == 2 && !cursor.is_joined(comma + 3)) {
        number.fraction = coins;
        number.length += 3;
    }
    return number;
}

// The length of the blank between a sign and its amount: "$ 5".
std::size_t gap_after_sign(const Cursor& cursor, const Row& row, std::size_t ahead) {
    return cursor.peek(ahead) == ' ' && !is_letter(row.written().back()) ? 1 : 0;
}

}  // namespace

void read_currency(const Cursor& cursor, Found& found) {
    const std::size_t minus = cursor.peek() == '-' ? 1 : 0;
    if (is_letter(cursor.before())) return;
    const Row* row = cursor.find_row(CURRENCIES, minus, [&](const Row& candidate) {
        const std::size_t end = minus + candidate.written().size();
        return (candidate.kind == Kind::before || candidate.kind == Kind::both) &&
               number_at(cursor, end + gap_after_sign(cursor, candidate, end)).length > 0;
    });
    if (row == nullptr && minus == 0) row = code_before(cursor);
    if (row == nullptr) return;
    if (minus > 0) say("minus", found.words);
    const std::size_t symbol_end = minus + row->written().size();
    const std::size_t begin = symbol_end + cursor.blanks(symbol_end);
    const Number number = amount_at(cursor, begin);
    const std::size_t end = begin + number.length;
    std::size_t scale_length = 0;
    // "$5-10 million": both are of the same.
    const std::size_t dash = cursor.dash(end);
    const std::size_t second_symbol =
        cursor.starts_with(row->written(), end + dash) ? row->written().size() : 0;
    const Number second = dash > 0 ? amount_at(cursor, end + dash + second_symbol) : Number{};
    if (second.length > 0) {
        const std::size_t second_end = end + dash + second_symbol + second.length;
        const char* scale = scale_at(cursor, second_end, true, scale_length);
        number.say(found.words);
        say("to", found.words);
        say_amount(second, scale, *row, minus, found);
        found.length = second_end + scale_length;
        found.length += say_per(cursor, found.length, found.words);
        return;
    }
    const char* scale = scale_at(cursor, end, true, scale_length);
    found.length = end + scale_length;
    if (number.fraction.size() != 2 && cursor.is_before_noun(found.length)) {
        number.say(found.words);
        if (scale != nullptr) say(scale, found.words);
        found.say_name(minus, row->written().size(), row->spoken());
    } else {
        say_amount(number, scale, *row, minus, found);
        found.length += say_per(cursor, found.length, found.words);
        const std::size_t last = found.length + cursor.dash(found.length);
        const bool is_range = last > found.length && cursor.starts_with(row->written(), last) &&
                              is_digit(cursor.peek(last + row->written().size()));
        if (!is_range) return;
        say("to", found.words);  // "$1.5bn-$2bn": the last is read by itself
        found.length = last;
    }
}

void read_amount_after(const Cursor& cursor, Found& found) {
    const Number number = amount_at(cursor, 0);
    std::size_t scale_length = 0;
    const char* scale = scale_at(cursor, number.length, false, scale_length);
    const std::size_t end = number.length + scale_length;
    const std::size_t blank = cursor.peek(end) == ' ' ? 1 : 0;
    const bool is_glued = blank == 0 && scale == nullptr;
    const Row* row = cursor.find_row(CURRENCIES, end + blank, [&](const Row& candidate) {
        return candidate.kind != Kind::before && (candidate.kind != Kind::glued || is_glued) &&
               !cursor.is_joined(end + blank + candidate.written().size());
    });
    if (row == nullptr) return;
    say_amount(number, scale, *row, end + blank, found);
    found.length = end + blank + row->written().size();
    found.length += say_per(cursor, found.length, found.words);
}

}  // namespace kavi::everyday

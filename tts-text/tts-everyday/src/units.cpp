// Units of measurement after a number.

#include "rules.h"

namespace kavi::everyday {

namespace {

// "2h 10m": after hours, these are minutes.
bool is_after_hours(const Place& place) {
    return place.before() == ' ' && place.before(2) == 'h' && is_digit(place.before(3));
}

// ".5 km", but not "fig.5 m" or "...5 m"
bool may_begin_number(const Place& place) {
    if (is_digit(place.peek())) return true;
    const char before = place.before();
    return place.peek() == '.' &&
           (before == '\0' || before == ' ' || before == '(' || before == '\n');
}

// "6 ft 2 in", "8 x 11 in", "8×11 in"; not "8 x 11 in the", "0x0 in"
bool is_after_feet(const Place& place, std::size_t end) {
    const std::string_view before = place.word_before();
    const bool is_hexadecimal = place.before(2) == '0' && !is_digit(place.before(3));
    const bool is_after_cross = (before == "x" && !is_hexadecimal) || place.before() == "×"[1] ||
                                (place.before() == ' ' && place.before(2) == "×"[1]);
    return (is_after_cross || before == "ft" || before == "feet") &&
           find_lower(DETERMINERS, place.letters(end + place.blanks(end))) == nullptr;
}

bool fits_unit(const Place& place, const Row& row, std::size_t ahead) {
    const std::size_t end = ahead + row.written().size();
    if (place.is_joined(end)) return false;
    if (row.written() == "g" && place.word_before() == "at") return false;  // "at 6 g"
    const bool is_of_word = place.peek(ahead - 1) == ' ' && place.peek(end) == '-';
    if (is_of_word && is_letter(place.peek(end + 1))) return false;  // "3 t-shirts"
    if (find(COMPASS, row.written()) != nullptr && is_street(place, end + 1))
        return false;  // "40 W 22nd St"
    if (row.kind == Kind::words) return place.peek(end) == ' ' && is_lower(place.peek(end + 1));
    if (row.kind == Kind::after) return is_after_feet(place, end);
    if (row.kind == Kind::before_noun) return place.is_before_noun(end);
    return row.kind != Kind::inside || place.peek(end) != ' ' || !is_upper(place.peek(end + 1));
}

// " x 5 ft", " × 5 m" after a length: the cross and the blank before it.
std::size_t say_by(const Place& place, std::size_t ahead, std::string& out) {
    for (const std::string_view cross : {" x ", " × "}) {
        if (!place.starts_with(cross, ahead) || !is_digit(place.peek(ahead + cross.size())))
            continue;
        say("by", out);
        return cross.size() - 1;
    }
    return 0;
}

// Says the unit of a row at offset `ahead` with what is linked to it, and takes all to its end.
void say_unit(const Place& place, std::size_t ahead, const Row& row, bool is_one, Found& found) {
    const std::size_t after = ahead + row.written().size();
    if (row.written() == "m" && is_after_hours(place)) {
        say(is_one ? "minute" : "minutes", found.words);
    } else {
        found.say_name(ahead, row.written().size(), is_one ? row.spoken() : row.many());
    }
    std::size_t link = say_per(place, after, found.words);
    if (link == 0) link = say_by(place, after, found.words);
    if (link > 0) {
        found.length = after + link;
        return;
    }
    if (row.written().back() == '.') {  // the sentence's too
        found.length = after - (place.may_end_sentence(after) ? 1 : 0);
        return;
    }
    const bool has_stop = place.peek(after) == '.' && !place.may_end_sentence(after + 1);
    found.length = after + (has_stop ? 1 : 0);
}

// "second", "kg", "m²" after a slash: the length, 0 if none.
std::size_t say_counted_by(const Place& place, std::size_t ahead, std::string& out) {
    const std::string_view word = place.letters(ahead);
    if (find(PER_WORDS, word) != nullptr && !place.is_joined(ahead + word.size())) {
        say(word, out);
        return word.size();
    }
    const Row* unit = place.find_row(UNITS, ahead, [&](const Row& row) {
        return !place.is_joined(ahead + row.written().size());
    });
    if (unit == nullptr) return 0;
    say(unit->spoken(), out);
    return unit->written().size();
}

}  // namespace

// "/s", "/kg/day"
std::size_t say_per(const Place& place, std::size_t ahead, std::string& out) {
    std::string words;
    std::size_t end = ahead;
    while (place.peek(end) == '/') {
        say("per", words);
        const std::size_t length = say_counted_by(place, end + 1, words);
        if (length == 0) return 0;
        end += 1 + length;
    }
    if (end > ahead) say(words, out);
    return end - ahead;
}

void read_unit(const Place& place, Found& found) {
    if (!may_begin_number(place)) return;
    const Number number = number_at(place, 0);
    if (number.length == 0) return;
    const char mark = place.peek(number.length);
    const bool may_be_prime = mark == '\'' || mark == '"' || is_outside_ascii(mark);
    if (may_be_prime && read_primes(place, number, found)) return;
    std::size_t end = number.length;
    Number second;  // of a range
    const std::size_t dash = range_dash(place, end);
    if (dash > 0) second = number_at(place, end + dash);
    if (second.length > 0) end += dash + second.length;
    const bool has_plus = place.peek(end) == '+';  // "2+ hrs"
    if (has_plus) ++end;
    const std::size_t blank = place.peek(end) == ' ' || place.peek(end) == '-' ? 1 : 0;
    const bool is_duration = end < 3 && find(BEFORE_SECONDS, place.word_before()) != nullptr;
    const bool may_be_plural = blank == 0 && number.fraction.empty() && !is_duration;  // "the 5s"
    const Row* row = place.find_row(UNITS, end + blank, [&](const Row& candidate) {
        return fits_unit(place, candidate, end + blank) &&
               !(candidate.written() == "s" && may_be_plural);
    });
    if (row == nullptr) return;
    number.say(found.words);
    if (second.length > 0) {
        say("to", found.words);
        second.say(found.words);
    }
    if (has_plus) say("plus", found.words);
    const std::size_t after = end + blank + row->written().size();
    const bool is_adjective = place.peek(end) == '-' || place.is_before_noun(after);
    const bool is_one = (number.is_one() && second.length == 0 && !has_plus) || is_adjective;
    say_unit(place, end + blank, *row, is_one, found);
}

// "3 1/2 lbs", "½ km"; not "a 1/2s"
void read_unit_after(const Place& place, bool is_one, Found& found) {
    if (read_inches_after(place, found)) return;
    const std::size_t blank = place.peek(found.length) == ' ' ? 1 : 0;
    const std::size_t ahead = found.length + blank;
    const Row* row = place.find_row(UNITS, ahead, [&](const Row& candidate) {
        return fits_unit(place, candidate, ahead) && (blank > 0 || candidate.written() != "s");
    });
    if (row == nullptr) return;
    const bool is_adjective = place.is_before_noun(ahead + row->written().size());
    say_unit(place, ahead, *row, is_one || is_adjective, found);
}

// "requests/sec", "365 days/yr": a rate, where what is counted is a word.
void read_rate(const Place& place, Found& found) {
    constexpr std::string_view TIMES[] = {"second", "minute", "hour", "day",
                                          "week",   "month",  "year"};
    const std::string_view counted = place.letters_before();
    const bool is_counted = counted.size() > 3 && counted.back() == 's' && is_lower(counted[0]);
    if (!is_counted) return;
    std::string words;
    const std::size_t length = say_per(place, 0, words);
    const std::string_view time = std::string_view(words).substr(words.rfind(' ') + 1);
    if (length == 0 || std::find(std::begin(TIMES), std::end(TIMES), time) == std::end(TIMES))
        return;
    found.words = words;
    found.length = length;
}

}  // namespace kavi::everyday

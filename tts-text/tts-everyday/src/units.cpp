// Units of measurement after a number.

#include "rules.h"

namespace kavi::everyday {

namespace {

// "2h 10m": after hours, these are minutes.
bool is_after_hours(const Cursor& cursor) {
    return cursor.before() == ' ' && cursor.before(2) == 'h' && is_digit(cursor.before(3));
}

// ".5 km", but not "fig.5 m" or "...5 m"
bool may_begin_number(const Cursor& cursor) {
    if (is_digit(cursor.peek())) return true;
    const char before = cursor.before();
    return cursor.peek() == '.' &&
           (before == '\0' || before == ' ' || before == '(' || before == '\n');
}

// "6 ft 2 in", "8 x 11 in", "8×11 in"; not "8 x 11 in the", "0x0 in"
bool is_after_feet(const Cursor& cursor, std::size_t end) {
    const std::string_view before = cursor.word_before();
    const bool is_hexadecimal = cursor.before(2) == '0' && !is_digit(cursor.before(3));
    const bool is_after_cross =
        (before == "x" && !is_hexadecimal) || cursor.is_after("×") || cursor.is_after("× ");
    return (is_after_cross || before == "ft" || before == "feet") &&
           find_lower(DETERMINERS, cursor.letters(end + cursor.blanks(end))) == nullptr;
}

bool fits_unit(const Cursor& cursor, const Row& row, std::size_t ahead) {
    const std::size_t end = ahead + row.written().size();
    if (cursor.is_joined(end)) return false;
    if (row.written() == "g" && cursor.word_before() == "at") return false;  // "at 6 g"
    const bool is_of_word = cursor.peek(ahead - 1) == ' ' && cursor.peek(end) == '-';
    if (is_of_word && is_letter(cursor.peek(end + 1))) return false;  // "3 t-shirts"
    if (find(COMPASS, row.written()) != nullptr && is_street(cursor, end + 1))
        return false;  // "40 W 22nd St"
    if (row.kind == Kind::words) return cursor.peek(end) == ' ' && is_lower(cursor.peek(end + 1));
    if (row.kind == Kind::after) return is_after_feet(cursor, end);
    if (row.kind == Kind::before_noun) return cursor.is_before_noun(end);
    return row.kind != Kind::inside || cursor.peek(end) != ' ' || !is_upper(cursor.peek(end + 1));
}

// " x 5 ft", " × 5 m" after a length: the cross and the blank before it.
std::size_t say_by(const Cursor& cursor, std::size_t ahead, std::string& out) {
    for (const std::string_view cross : {" x ", " × "}) {
        if (!cursor.starts_with(cross, ahead) || !is_digit(cursor.peek(ahead + cross.size())))
            continue;
        say("by", out);
        return cross.size() - 1;
    }
    return 0;
}

// Says the unit of a row at offset `ahead` with what is linked to it, and takes all to its end.
void say_unit(const Cursor& cursor, std::size_t ahead, const Row& row, bool is_one, Found& found) {
    const std::size_t after = ahead + row.written().size();
    if (row.written() == "m" && is_after_hours(cursor)) {
        say(is_one ? "minute" : "minutes", found.words);
    } else {
        found.say_name(ahead, row.written().size(), is_one ? row.spoken() : row.many());
    }
    std::size_t link = say_per(cursor, after, found.words);
    if (link == 0) link = say_by(cursor, after, found.words);
    if (link > 0) {
        found.length = after + link;
        return;
    }
    if (row.written().back() == '.') {  // the sentence's too
        found.length = after - (cursor.may_end_sentence(after) ? 1 : 0);
        return;
    }
    const bool has_stop = cursor.peek(after) == '.' && !cursor.may_end_sentence(after + 1);
    found.length = after + (has_stop ? 1 : 0);
}

// "second", "kg", "m²" after a slash: the length, 0 if none.
std::size_t say_counted_by(const Cursor& cursor, std::size_t ahead, std::string& out) {
    const std::string_view word = cursor.letters(ahead);
    if (find(PER_WORDS, word) != nullptr && !cursor.is_joined(ahead + word.size())) {
        say(word, out);
        return word.size();
    }
    const Row* unit = cursor.find_row(UNITS, ahead, [&](const Row& row) {
        return !cursor.is_joined(ahead + row.written().size());
    });
    if (unit == nullptr) return 0;
    say(unit->spoken(), out);
    return unit->written().size();
}

}  // namespace

// "/s", "/kg/day"
std::size_t say_per(const Cursor& cursor, std::size_t ahead, std::string& out) {
    std::string words;
    std::size_t end = ahead;
    while (cursor.peek(end) == '/') {
        say("per", words);
        const std::size_t length = say_counted_by(cursor, end + 1, words);
        if (length == 0) return 0;
        end += 1 + length;
    }
    if (end > ahead) say(words, out);
    return end - ahead;
}

void read_unit(const Cursor& cursor, Found& found) {
    if (!may_begin_number(cursor)) return;
    const Number number = number_at(cursor, 0);
    if (number.length == 0) return;
    const char mark = cursor.peek(number.length);
    const bool may_be_prime = mark == '\'' || mark == '"' || is_outside_ascii(mark);
    if (may_be_prime && read_primes(cursor, number, found)) return;
    std::size_t end = number.length;
    Number second;  // of a range
    const std::size_t dash = range_dash(cursor, end);
    if (dash > 0) second = number_at(cursor, end + dash);
    if (second.length > 0) end += dash + second.length;
    const bool has_plus = cursor.peek(end) == '+';  // "2+ hrs"
    if (has_plus) ++end;
    const std::size_t blank = cursor.peek(end) == ' ' || cursor.peek(end) == '-' ? 1 : 0;
    const bool is_duration = end < 3 && find(BEFORE_SECONDS, cursor.word_before()) != nullptr;
    const bool may_be_plural = blank == 0 && number.fraction.empty() && !is_duration;  // "the 5s"
    const Row* row = cursor.find_row(UNITS, end + blank, [&](const Row& candidate) {
        return fits_unit(cursor, candidate, end + blank) &&
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
    const bool is_adjective = cursor.peek(end) == '-' || cursor.is_before_noun(after);
    const bool is_one = (number.is_one() && second.length == 0 && !has_plus) || is_adjective;
    say_unit(cursor, end + blank, *row, is_one, found);
}

// "3 1/2 lbs", "½ km"; not "a 1/2s"
void read_unit_after(const Cursor& cursor, bool is_one, Found& found) {
    if (read_inches_after(cursor, found)) return;
    const std::size_t blank = cursor.peek(found.length) == ' ' ? 1 : 0;
    const std::size_t ahead = found.length + blank;
    const Row* row = cursor.find_row(UNITS, ahead, [&](const Row& candidate) {
        return fits_unit(cursor, candidate, ahead) && (blank > 0 || candidate.written() != "s");
    });
    if (row == nullptr) return;
    const bool is_adjective = cursor.is_before_noun(ahead + row->written().size());
    say_unit(cursor, ahead, *row, is_one || is_adjective, found);
}

// "requests/sec", "365 days/yr": a rate, where what is counted is a word.
void read_rate(const Cursor& cursor, Found& found) {
    constexpr std::string_view TIMES[] = {"second", "minute", "hour", "day",
                                          "week",   "month",  "year"};
    const std::string_view counted = cursor.letters_before();
    const bool is_counted = counted.size() > 3 && counted.back() == 's' && is_lower(counted[0]);
    if (!is_counted) return;
    std::string words;
    const std::size_t length = say_per(cursor, 0, words);
    const std::string_view time = std::string_view(words).substr(words.rfind(' ') + 1);
    if (length == 0 || std::find(std::begin(TIMES), std::end(TIMES), time) == std::end(TIMES))
        return;
    found.words = words;
    found.length = length;
}

}  // namespace kavi::everyday

// Numbers by themselves: ordinals, percentages, ranges, decimals, and signs before them.

#include "fractions.h"
#include "rules.h"

namespace kavi::everyday {

namespace {

bool read_ordinal(const Cursor& cursor, const Number& number, Found& found) {
    if (!number.fraction.empty() || is_letter(cursor.before())) return false;  // "passw0rd"
    const Row* suffix = cursor.find_row(ORDINAL_SUFFIXES, number.length);
    if (suffix == nullptr) return false;
    std::size_t end = number.length + suffix->written().size();
    const bool is_many = cursor.peek(end) == 's';  // "cut into 12ths"
    if (is_many) ++end;
    if (cursor.is_joined(end)) return false;
    say_ordinal(number.digits(), found.words);
    if (is_many) found.words += 's';
    const std::size_t dash = cursor.dash(end);
    const bool is_range = dash > 0 && ordinal_length(cursor, end + dash) > 0;
    if (is_range) say("to", found.words);  // "4th-6th": the last is read by itself
    found.length = end + (is_range ? dash : 0);
    return true;
}

// "221B": three digits and more before a letter are said one by one.
bool read_house_number(const Cursor& cursor, const Number& number, Found& found) {
    const std::size_t end = number.length;
    const bool is_one = end > 2 && cursor.digits().size() == end && is_upper(cursor.peek(end)) &&
                        !cursor.is_joined(end + 1);
    if (!is_one) return false;
    const char letter = cursor.peek(end);
    const bool is_hot = (letter == 'C' || letter == 'F') && end == 3 && number.whole[2] == '0';
    is_hot ? number.say(found.words) : say_digits(number.whole, found.words);  // "200C"
    found.length = end;
    return true;
}

// "odds of 3:1", "a 1:72 model"; two digits after the colon may be a time's, and after a name it
// may be a verse
bool read_ratio(const Cursor& cursor, const Number& number, Found& found) {
    const std::size_t colon = number.length;
    if (!number.fraction.empty() || cursor.peek(colon) != ':' || cursor.before() == ':')
        return false;
    const std::string_view second = cursor.digits(colon + 1);
    const std::size_t end = colon + 1 + second.size();
    const bool goes_on = cursor.is_joined(end) || cursor.peek(end) == ':' || cursor.dash(end) > 0 ||
                         (cursor.peek(end) == '.' && is_digit(cursor.peek(end + 1)));
    if (second.empty() || goes_on) return false;
    const std::string_view before = cursor.word_before();
    const bool is_after_word = cursor.before() == ' ' && !before.empty() && is_lower(before[0]);
    const bool has_noun =
        cursor.peek(end) == ' ' && find(RATIO_NOUNS, cursor.letters(end + 1)) != nullptr;
    if (!has_noun && !(is_after_word && second.size() == 1)) return false;
    number.say(found.words);
    const std::string_view next = cursor.letters(end + cursor.blanks(end));
    const bool is_degree = number.whole == "2" && (second == "1" || second == "2") &&
                           before == "a" && (next == "in" || next == "from" || next.empty());
    if (!is_degree) say("to", found.words);
    say_cardinal(second, found.words);
    found.length = end;
    return true;
}

// "an 8-10 record"
bool read_record(const Cursor& cursor, const Number& number, Found& found) {
    const std::size_t dash = cursor.dash(number.length);
    const std::string_view lost = cursor.digits(number.length + dash);
    const std::size_t end = number.length + dash + lost.size();
    if (dash == 0 || lost.empty() || lost.size() > 3 || !cursor.starts_with(" record", end))
        return false;
    number.say(found.words);
    say("and", found.words);
    say_cardinal(lost, found.words);
    found.length = end;
    return true;
}

// ---- What may come after a number: how long it is, its words added ----

// "Fig. 3-2", "Table 4-1"
bool is_after_figure(const Cursor& cursor) {
    const std::size_t stop = cursor.before(2) == '.' ? 2 : 0;
    return find_lower(BEFORE_FIGURE, cursor.word_before(stop)) != nullptr;
}

// "10-20", "3–2"; not "1-2-3"
std::size_t say_range(const Cursor& cursor, std::size_t ahead, std::string& out) {
    const std::size_t dash = cursor.dash(ahead);
    if (dash == 0 || cursor.before() == '-' || cursor.is_joined_before()) return 0;
    const Number last = number_at(cursor, ahead + dash);
    const std::size_t end = ahead + dash + last.length;
    if (last.length == 0 || (cursor.dash(end) > 0 && is_digit(cursor.peek(end + cursor.dash(end)))))
        return 0;
    const bool is_fixed = (last.whole == "50" && cursor.starts_with("50-")) ||
                          (last.whole == "7" && cursor.starts_with("24-"));
    const bool is_name = last.fraction.empty() && is_after_figure(cursor);
    if (!is_fixed) say(is_name ? "dash" : "to", out);
    last.say(out);
    return dash + last.length;
}

// "5%", "5 %"
std::size_t say_percent(const Cursor& cursor, std::size_t ahead, std::string& out) {
    const std::size_t blank = cursor.peek(ahead) == ' ' ? 1 : 0;
    if (cursor.peek(ahead + blank) != '%') return 0;
    say("percent", out);
    return blank + 1;
}

// "10% - 15%", after the first sign
std::size_t say_second_percent(const Cursor& cursor, std::size_t ahead, std::string& out) {
    const std::size_t at = ahead + range_dash(cursor, ahead);
    const Number last = number_at(cursor, at);
    const std::size_t end = at + last.length;
    if (at == ahead || last.length == 0 || cursor.peek(end) != '%') return 0;
    say("to", out);
    last.say(out);
    say("percent", out);
    return end + 1 - ahead;
}

// "3x", "3 x 4", "3×4", "3 × 4"; the blank after it is left
std::size_t times_length(const Cursor& cursor, std::size_t ahead) {
    constexpr std::string_view CROSS = "×";
    if (cursor.starts_with(CROSS, ahead)) return CROSS.size();
    if (cursor.starts_with(" × ", ahead)) return 1 + CROSS.size();
    if (cursor.starts_with(" x ", ahead) && is_digit(cursor.peek(ahead + 3))) return 2;
    if (cursor.peek(ahead) != 'x' || cursor.is_joined(ahead + 1)) return 0;
    const std::size_t at = ahead + 1 + cursor.blanks(ahead + 1);
    const char next = cursor.peek(at);
    constexpr std::string_view OPERATORS_AFTER = "+-=^)";  // "2x + 1", "3x − 7"
    const bool is_operator = next != '\0' && OPERATORS_AFTER.find(next) != std::string_view::npos;
    return is_operator || (is_outside_ascii(next) && cursor.letter(at) == 0) ? 0 : 1;
}

// "1.5M", "5M users"; "a 5M cable", "3M makes" may be anything
std::size_t say_scale(const Cursor& cursor, const Number& number, std::string& out) {
    const char scale = cursor.peek(number.length);
    const std::size_t end = number.length + 1;
    if ((scale != 'M' && scale != 'B') || cursor.is_joined(end)) return 0;
    const std::string_view counted = cursor.peek(end) == ' ' ? cursor.letters(end + 1) : "";
    if (number.fraction.empty() && find(COUNTED_NOUNS, counted) == nullptr) return 0;
    say(scale == 'M' ? "million" : "billion", out);
    return 1;
}

// "8.5 x 11", "5 x 3 inches", "2 × 4 m", "4 x 2 x 3 cm": a size, of numbers that nobody multiplies.
bool is_size(const Cursor& cursor, std::size_t ahead) {
    ahead += cursor.blanks(ahead);
    Number number = number_at(cursor, ahead);
    if (number.length == 0) return false;
    if (const std::size_t cross = times_length(cursor, ahead + number.length); cross > 0) {
        ahead += number.length + cross;
        ahead += cursor.blanks(ahead);
        number = number_at(cursor, ahead);
    }
    ahead += number.length + cursor.blanks(ahead + number.length);
    if (cursor.peek(ahead) == '=' || number.whole == "10") return false;  // "6.02 x 10^23"
    if (!number_at(cursor, 0).fraction.empty()) return true;
    const std::string_view word = cursor.letters(ahead);
    // No row: its abbreviation is a word.
    if (word == "inches" || cursor.starts_with("in.", ahead)) return true;
    return std::any_of(std::begin(UNITS), std::end(UNITS), [word](const Row& row) {
        return word == row.written() || word == row.spoken() || word == row.many();
    });
}

// "4x4", "3x4=12"; not "0x41", a number of base sixteen
std::size_t say_glued_cross(const Cursor& cursor, std::size_t ahead, std::string& out) {
    if (cursor.peek(ahead) != 'x' || cursor.peek() == '0') return 0;
    const Number second = number_at(cursor, ahead + 1);
    if (second.length == 0) return 0;
    const std::size_t end = ahead + 1 + second.length;
    say(cursor.peek(end + cursor.blanks(end)) == '=' ? "times" : "by", out);
    return 1;
}

std::size_t say_times(const Cursor& cursor, std::size_t ahead, std::string& out) {
    if (const std::size_t length = say_glued_cross(cursor, ahead, out); length > 0) return length;
    const std::size_t length = times_length(cursor, ahead);
    if (length > 0) say(is_size(cursor, ahead + length) ? "by" : "times", out);
    return length;
}

// "1e6", "6.02e23", "5.1E-3"
std::size_t say_power_of_ten(const Cursor& cursor, const Number& number, std::string& out) {
    const std::size_t e = number.length;
    const bool has_sign = cursor.peek(e + 1) == '-' || cursor.peek(e + 1) == '+';
    const bool is_clear = has_sign || !number.fraction.empty();
    if (cursor.peek(e) != 'e' && !(cursor.peek(e) == 'E' && is_clear)) return 0;
    const std::size_t at = e + 1 + (has_sign ? 1 : 0);
    const std::string_view power = cursor.digits(at);
    const std::size_t end = at + power.size();
    if (power.empty() || power.size() > 3 || cursor.is_joined(end)) return 0;
    say("times ten to the power of", out);
    if (cursor.peek(e + 1) == '-') say("minus", out);
    say_cardinal(power, out);
    return end - e;
}

// "4.5/5"; "section 4.4/4" is none
std::size_t say_out_of(const Cursor& cursor, const Number& number, std::string& out) {
    if (number.fraction.empty() || cursor.peek(number.length) != '/') return 0;
    const std::string_view below = cursor.digits(number.length + 1);
    const std::size_t end = number.length + 1 + below.size();
    const bool goes_on = cursor.is_joined(end) || cursor.peek(end) == '/' ||
                         (cursor.peek(end) == '.' && is_digit(cursor.peek(end + 1)));
    if (!is_best_mark(below) || goes_on) return 0;
    say("out of", out);
    say_cardinal(below, out);
    return end - number.length;
}

// ---- Signs ----

// "-5", "+3", "№ 5", "~$5"; not the option "-p5"
void read_sign_before_number(const Cursor& cursor, const Row& sign, Found& found) {
    const char before = cursor.before();
    const bool may_begin =
        before == '\0' || before == ' ' || before == '(' || before == '\n' || before == ':';
    const std::size_t length = sign.written().size();
    const std::size_t blank = cursor.peek(length) == ' ' && length > 1 ? 1 : 0;
    const std::string_view zone = cursor.letters_before();
    const Row* currency =
        length == 1 ? cursor.find_row(CURRENCIES, 1,
                                      [](const Row& row) {
                                          return row.kind == Kind::before || row.kind == Kind::both;
                                      })
                    : nullptr;
    const std::size_t digit = length + (currency != nullptr ? currency->written().size() : blank);
    if ((!may_begin && zone != "UTC" && zone != "GMT") || !is_digit(cursor.peek(digit))) return;
    found.length = length + blank;
    found.words = sign.spoken();
}

}  // namespace

std::size_t range_dash(const Cursor& cursor, std::size_t ahead) {
    const std::size_t blank = cursor.peek(ahead) == ' ' ? 1 : 0;
    const std::size_t dash = cursor.dash(ahead + blank);
    if (dash == 0) return 0;
    const bool has_blank_after = cursor.peek(ahead + blank + dash) == ' ';
    return has_blank_after == (blank > 0) ? dash + 2 * blank : 0;
}

std::size_t ordinal_length(const Cursor& cursor, std::size_t ahead) {
    const std::string_view digits = cursor.digits(ahead);
    const std::string_view suffix = cursor.letters(ahead + digits.size());
    const bool is_ordinal = !digits.empty() && find(ORDINAL_SUFFIXES, suffix) != nullptr;
    return is_ordinal ? digits.size() + suffix.size() : 0;
}

void read_number(const Cursor& cursor, Found& found) {
    const Number number = number_at(cursor, 0);
    if (number.fraction.empty() && read_fraction(cursor, found)) return;
    if (read_record(cursor, number, found) || read_ratio(cursor, number, found)) return;
    if (read_ordinal(cursor, number, found) || read_house_number(cursor, number, found)) return;
    const bool is_code =
        number.whole.size() > 1 && number.whole[0] == '0' && number.fraction.empty();
    is_code ? say_digits(number.digits(), found.words) : number.say(found.words);
    std::size_t end = number.length;
    end += say_power_of_ten(cursor, number, found.words);
    const std::size_t scale = say_scale(cursor, number, found.words);
    end += scale;
    if (end == number.length) end += say_out_of(cursor, number, found.words);
    if (end == number.length && cursor.peek(end) == '/' && is_letter(cursor.peek(end + 2)))
        end += say_per(cursor, end, found.words);  // "120/km²"
    end += say_range(cursor, end, found.words);
    const std::size_t percent = say_percent(cursor, end, found.words);
    const std::size_t times = percent == 0 ? say_times(cursor, end, found.words) : 0;
    end += percent + times;
    if (percent > 0) end += say_second_percent(cursor, end, found.words);
    if (times == 1) end += say_per(cursor, end, found.words);  // "2x/day"
    found.length = end;
    if (scale > 0) read_unit_after(cursor, false, found);
}

// "a .38 revolver", ".22-caliber", "drew a .45."
bool read_calibre(const Cursor& cursor, Found& found) {
    const std::string_view digits = cursor.digits(1);
    const Row* calibre = find(CALIBRES, digits);
    if (calibre == nullptr) return false;
    const std::size_t end = 1 + digits.size();
    const char after = cursor.peek(end);
    const bool is_joined = after == ' ' || after == '-';
    const bool has_gun = is_joined && find_lower(GUNS, cursor.letters(end + 1)) != nullptr;
    const bool is_alone = cursor.word_before() == "a" && !is_joined && !cursor.is_joined(end) &&
                          after != '%' && !is_digit(cursor.peek(end + 1));
    if (!has_gun && !is_alone) return false;
    found.words = calibre->spoken();
    found.length = end;
    return true;
}

// ".35"; not "end.5", "...5"
void read_point(const Cursor& cursor, Found& found) {
    const char before = cursor.before();
    const bool may_begin = before == '\0' || before == ' ' || before == '(' || before == '\n';
    if (cursor.peek() != '.' || !may_begin || read_calibre(cursor, found)) return;
    const Number number = number_at(cursor, 0);
    if (number.length == 0 || cursor.is_joined(number.length) || cursor.peek(number.length) == '-')
        return;
    const std::string_view verb = cursor.word_before();
    const bool is_average =
        verb == "bats" || verb == "batted" || verb == "batting" || verb == "hitting";
    if (is_average && number.fraction.size() == 3) {
        say_in_pairs(number.fraction, found.words);
    } else {
        say("point", found.words);
        say_digits(number.fraction, found.words);
    }
    found.length = number.length + say_percent(cursor, number.length, found.words);
}

// "10²³", "10⁻⁹", "x²"; after a word it is a foot note
bool read_superscript(const Cursor& cursor, Found& found) {
    constexpr std::size_t LONGEST = 4;
    std::size_t end = 0;
    std::string digits;
    while (digits.size() <= LONGEST) {
        const Row* digit = cursor.find_row(SUPERSCRIPTS, end);
        if (digit == nullptr) break;
        digits += digit->spoken();
        end += digit->written().size();
    }
    if (digits.empty() || digits.size() > LONGEST) return false;
    const bool has_minus = digits[0] == '-';
    if (has_minus) digits.erase(0, 1);
    const bool is_note = is_letter(cursor.before()) && is_letter(cursor.before(2));
    if (digits.empty() || digits.find('-') != std::string::npos) return false;
    const bool has_name = digits == "1" || digits == "2" || digits == "3";  // in SIGNS, or none
    if (!has_minus && (is_note || has_name)) return false;
    found.words = "to the power of";
    if (has_minus) say("minus", found.words);
    say_cardinal(digits, found.words);
    found.length = end;
    return true;
}

// "-5", "+3", "#5", "№ 5", "½", "&", "~5", "2²" and the like.
void read_sign(const Cursor& cursor, Found& found) {
    if (const Row* fraction = fraction_sign_at(cursor, 0)) {
        found.words = fraction->spoken();
        found.length = fraction->written().size();
        const bool is_half = found.words == "one half" && cursor.peek(found.length) == '-' &&
                             is_letter(cursor.peek(found.length + 1));
        if (is_half) found.words = "half";  // "½-price"
        read_unit_after(cursor, true, found);
        return;
    }
    if (is_outside_ascii(cursor.peek()) && read_superscript(cursor, found)) return;
    const Row* sign = cursor.find_row(SIGNS, 0);
    if (sign == nullptr) return;
    if (sign->kind == Kind::before_number) return read_sign_before_number(cursor, *sign, found);
    say_sign(cursor, *sign, found);
}

// "πr", but not the first letter of "πόλις".
void say_sign(const Cursor& cursor, const Row& sign, Found& found) {
    if (cursor.letter(0) > 0 && cursor.letter(sign.written().size()) > 1) return;
    found.length = sign.written().size();
    found.words = sign.spoken();
}

}  // namespace kavi::everyday

// Operators between operands.

#include "marks.h"

namespace kavi::everyday {

namespace {

struct Gap {
    std::size_t before;
    std::size_t after;  // where the right operand begins
};

bool is_quantity_after(const Cursor& cursor, std::size_t ahead) {
    const char c = cursor.peek(ahead);
    if (is_digit(c) || c == '(') return true;
    if ((c == '-' || c == '.' || c == '$') && is_digit(cursor.peek(ahead + 1))) return true;
    const std::size_t length = cursor.letter(ahead);
    return length > 0 && cursor.word(ahead) == length && cursor.apostrophe(ahead + length) == 0;
}

// "x²", "10⁸"
bool ends_in_superscript(const Cursor& cursor, std::size_t back) {
    return std::any_of(SUPERSCRIPTS.begin(), SUPERSCRIPTS.end(),
                       [&](const Row& row) { return cursor.is_after(row.written(), back); });
}

bool is_quantity_before(const Cursor& cursor, std::size_t back) {
    const char c = cursor.before(back + 1);
    if (is_digit(c) || c == ')' || ends_in_superscript(cursor, back)) return true;
    if (!is_letter(c)) return false;
    const char last = cursor.before(back + 2);
    return !is_letter(last) && last != '\'' && !is_outside_ascii(last);
}

bool is_word_after(const Cursor& cursor, std::size_t ahead) {
    const char c = cursor.peek(ahead);
    return cursor.is_joined(ahead) || c == '(' || c == '[' || c == '{' || c == '"' || c == '\'' ||
           c == '$' || c == '-' || c == '/' || c == '.';
}

bool is_word_before(const Cursor& cursor, std::size_t back) {
    const char c = cursor.before(back + 1);
    return cursor.is_joined_before(back) || c == ')' || c == ']' || c == '}' || c == '"' ||
           c == '\'' || ends_in_superscript(cursor, back);
}

// "(> 5)", "<10"; no bracket round a number, nor a quotation.
bool is_comparison_alone(const Cursor& cursor, std::size_t length) {
    const std::size_t blanks = length + cursor.blanks(length);
    const std::size_t at = blanks + (cursor.peek(blanks) == '$' ? 1 : 0);
    if (!is_digit(cursor.peek(at)) || !may_precede_word(cursor.before())) return false;
    if (cursor.peek() == '>') return !cursor.begins_line();
    const auto is_inside = [](char c) { return !is_blank_or_end(c) && c != '>'; };
    return cursor.peek(at + cursor.run(is_inside, at)) != '>';
}

bool fits_operator(const Cursor& cursor, const Row& row, const Gap& gap) {
    const bool has_blanks = gap.before > 0;
    if (has_blanks != (gap.after > row.written().size())) return false;
    const bool has_words = is_word_before(cursor, gap.before) && is_word_after(cursor, gap.after);
    if (row.kind == Kind::words) return has_words;
    if (row.kind == Kind::inside)
        return !has_blanks && is_letter(cursor.before()) && is_letter(cursor.peek(gap.after));
    const bool has_quantities =
        is_quantity_before(cursor, gap.before) && is_quantity_after(cursor, gap.after);
    const bool has_numbers =
        is_digit(cursor.before(gap.before + 1)) && is_digit(cursor.peek(gap.after));
    // Without blanks "a<b>c" is markup.
    if (row.kind == Kind::compared) return has_blanks ? has_words : has_numbers;
    if (row.written() == "/") return has_numbers && has_blanks;
    // "6 - 4 = 2", but no range and no score.
    if (row.written() == "-") {
        const std::size_t end = gap.after + number_at(cursor, gap.after).length;
        return has_numbers && has_blanks && cursor.peek(end + cursor.blanks(end)) == '=';
    }
    // "mc^2"
    if (row.written() == "^" && is_letter(cursor.before()) && is_digit(cursor.peek(gap.after)))
        return true;
    // "f**k" is no power.
    const bool has_number =
        is_digit(cursor.before(gap.before + 1)) || is_digit(cursor.peek(gap.after));
    if (row.written() == "**" && !has_number) return false;
    // "^C^Z" are keys.
    return has_quantities && !(is_upper(cursor.before()) && is_upper(cursor.peek(gap.after)));
}

// "x^2", "10^3": said by a word of its own.
bool read_small_power(const Cursor& cursor, std::size_t ahead, Found& found) {
    const Number power = number_at(cursor, ahead);
    const bool is_square = power.whole == "2";
    if ((!is_square && power.whole != "3") || !power.fraction.empty()) return false;
    if (cursor.is_joined(ahead + power.length)) return false;
    found.length = ahead + power.length;
    found.words = is_square ? "squared" : "cubed";
    return true;
}

}  // namespace

bool read_operator(const Cursor& cursor, Found& found) {
    const Row* row = cursor.find_row(OPERATORS, 0);
    if (row == nullptr) return false;
    const std::size_t length = row->written().size();
    Gap gap = {0, length + cursor.blanks(length)};
    while (cursor.before(gap.before + 1) == ' ') ++gap.before;
    const bool is_read = fits_operator(cursor, *row, gap) ||
                         (row->kind == Kind::compared && is_comparison_alone(cursor, length));
    if (!is_read) return false;
    if (row->written() == "^" && gap.before == 0 && read_small_power(cursor, length, found))
        return true;
    found.length = length;
    found.words = row->spoken();
    if (row->written() == "^" && cursor.peek(length) == '-' && is_digit(cursor.peek(length + 1))) {
        say("minus", found.words);  // "10^-3"
        ++found.length;
    }
    // "File > Save": a way through menus.
    const bool is_menu = row->written() == ">" && gap.before > 0 &&
                         is_upper(cursor.peek(gap.after)) && is_lower(cursor.peek(gap.after + 1));
    if (is_menu) found.words = ", ";
    return true;
}

// "C++", "60+", "R+D", "5 + 3"
bool read_plus(const Cursor& cursor, Found& found) {
    const bool is_glued = cursor.is_joined_before() || cursor.before() == ')' ||
                          (cursor.before() == '+' && cursor.is_joined_before(1));
    const bool is_spaced = cursor.before() == ' ' && is_word_before(cursor, 1) &&
                           cursor.peek(1) == ' ' && is_word_after(cursor, 2);
    if (!is_glued && !is_spaced) return false;
    found.length = 1;
    found.words = "plus";
    return true;
}

}  // namespace kavi::everyday

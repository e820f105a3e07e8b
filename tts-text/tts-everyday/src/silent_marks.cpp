// Marks of mail and manuals that only dress a text.

#include "marks.h"

namespace kavi::everyday {

namespace {

// The longest span whose other mark is looked for.
constexpr std::size_t LONGEST_SPAN = LOOK_BACK - 4;

std::size_t run_of(const Cursor& cursor, char mark, std::size_t ahead, std::size_t longest) {
    std::size_t length = 0;
    while (length < longest && cursor.peek(ahead + length) == mark) ++length;
    return length;
}

// Whether stress that begins at the cursor with a run of `length` asterisks ends near.
bool has_end_of_stress(const Cursor& cursor, std::size_t length) {
    for (std::size_t at = length; at < LONGEST_SPAN; ++at) {
        const char c = cursor.peek(at);
        if (c == '\0' || c == '\n') return false;
        if (c != '*') continue;
        const bool is_end = cursor.peek(at - 1) != ' ' &&
                            run_of(cursor, '*', at, length + 1) == length &&
                            !cursor.is_joined(at + length);
        if (is_end) return true;
        at += run_of(cursor, '*', at, LONGEST_SPAN) - 1;
    }
    return false;
}

// Whether stress begins near before the cursor with a run of `length` asterisks; none is directly
// before it.
bool has_begin_of_stress(const Cursor& cursor, std::size_t length) {
    for (std::size_t back = 2; back < LONGEST_SPAN; ++back) {
        const char c = cursor.before(back);
        if (c == '\0' || c == '\n') return false;
        if (c != '*') continue;
        return cursor.before(back - 1) != ' ' &&
               (cursor.before(back + 1) == '*') == (length == 2) &&
               !cursor.is_joined_before(back + length - 1);
    }
    return false;
}

// "<name>", "<1234@host>": the bracket that closes it; the engine says nothing for the first.
bool closes_bracket(const Cursor& cursor) {
    const auto is_of_name = [](char c) {
        return is_letter(c) || is_digit(c) || is_outside_ascii(c) || c == '.' || c == '-' ||
               c == '_' || c == '@' || c == '/' || c == ':' || c == '+';
    };
    std::size_t back = 1;
    while (back < LOOK_BACK && is_of_name(cursor.before(back))) ++back;
    return back > 1 && cursor.before(back) == '<';
}

}  // namespace

// "=====", "*****", "~~~~": a rule across the page, four marks at a time: where a user's own word
// is in them, all that was looked at is looked at again.
bool read_rule(const Cursor& cursor, Found& found) {
    const char mark = cursor.peek();
    if (mark != '=' && mark != '*' && mark != '~' && mark != '>' && mark != '#') return false;
    constexpr std::size_t SHORTEST = 3;
    const std::size_t length = run_of(cursor, mark, 0, SHORTEST + 1);
    const bool goes_on = cursor.before(1) == mark && cursor.before(2) == mark;
    if (length < SHORTEST && !goes_on) return false;
    found.length = length;
    return true;
}

// "*stress*", "**stress**": either end, where the other is in sight.
bool read_stress(const Cursor& cursor, Found& found) {
    const std::size_t length = run_of(cursor, '*', 0, 3);
    if (length > 2 || cursor.before() == '*') return false;
    const char after = cursor.peek(length);
    const bool begins =
        begins_word(cursor) && !is_blank_or_end(after) && has_end_of_stress(cursor, length);
    const bool ends = !begins && !is_blank_or_end(cursor.before()) && !cursor.is_joined(length) &&
                      has_begin_of_stress(cursor, length);
    if (!begins && !ends) return false;
    found.length = length;
    return true;
}

// "* item" at the begin of a line, the other side of a box at its end, "F***ing", "sh**".
bool read_silent_asterisk(const Cursor& cursor, Found& found) {
    const std::size_t length = run_of(cursor, '*', 0, 2);
    const bool is_bullet = length == 1 && cursor.begins_line() && cursor.peek(1) == ' ';
    const bool is_footnote = length == 1 && cursor.begins_line() && cursor.is_joined(1);
    const bool is_left_out = length > 1 && is_letter(cursor.before());
    const bool is_edge = length == 1 && cursor.before() == ' ' && cursor.peek(1) == '\n';
    if (!is_bullet && !is_edge && !is_footnote && !is_left_out) return false;
    found.length = length;
    return true;
}

// "<bob@example.com>", "<http://example.com>": the address alone.
bool read_address_in_brackets(const Cursor& cursor, Found& found) {
    const std::size_t length = cursor.run([](char c) { return c > ' ' && c != '>'; });
    if (cursor.peek(length) != '>') return false;
    read_address(Cursor(cursor.part(0, length), 1), found);
    if (found.length > 0 && found.length == length - 1) {
        found.length += 2;
        return true;
    }
    found = Found();
    return false;
}

// "> quoted", ">> quoted", "| quoted"
bool read_quotation(const Cursor& cursor, Found& found) {
    const char after = cursor.peek(1);
    const bool is_quotation = cursor.begins_line() && (is_blank_or_end(after) || after == '>' ||
                                                       (cursor.peek() == '>' && is_letter(after)));
    if (!is_quotation && (cursor.peek() != '>' || !closes_bracket(cursor))) return false;
    found.length = 1;
    return true;
}

}  // namespace kavi::everyday

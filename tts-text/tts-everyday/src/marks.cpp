// Marks of mail, manuals and the web that are said with their names; which rule reads a mark.

#include "marks.h"

namespace kavi::everyday {

namespace {

// "*.txt", "news.*", "NNTP-*"
bool read_wildcard(const Cursor& cursor, Found& found) {
    const auto joins = [](char c) { return c == '.' || c == '/' || c == '-' || c == '_'; };
    const char before = cursor.before();
    const bool is_last = joins(before) && !is_blank_or_end(cursor.before(2));
    const bool is_first = begins_word(cursor) && joins(cursor.peek(1)) && cursor.is_joined(2);
    if (!is_last && !is_first) return false;
    found.length = 1;
    found.words = "star";
    return true;
}

// "C#" is sharp; "at # 5", "my # is" are a number; "#tag" is a hash, "press # to" the key.
bool read_hash(const Cursor& cursor, Found& found) {
    const char before = cursor.before();
    found.length = 1;
    if (before >= 'A' && before <= 'G' && !is_letter(cursor.before(2)) && !cursor.is_joined(1)) {
        found.words = "sharp";
    } else if (cursor.peek(1) == ' ' && is_digit(cursor.peek(2)) && before == ' ' &&
               !cursor.begins_line()) {
        found.words = "number";
    } else if (begins_word(cursor) && cursor.letter(1) > 0) {
        found.words = "hash";
    } else if (const Row* row = find_lower(BEFORE_HASH, cursor.word_before());
               row != nullptr && before == ' ' && is_blank_or_end(cursor.peek(1))) {
        found.words = row->spoken();
    } else {
        found.length = 0;
    }
    return found.length > 0;
}

// "~/notes", "~bob"; alone it is an ornament.
bool read_tilde(const Cursor& cursor, Found& found) {
    const bool is_name = begins_word(cursor) && (cursor.peek(1) == '/' || cursor.letter(1) > 0);
    found.length = 1;
    if (is_name) found.words = "tilde";
    return true;
}

// "C:\temp", "\alpha"
bool read_backslash(const Cursor& cursor, Found& found) {
    if (!cursor.is_joined(1)) return false;
    found.length = 1;
    found.words = "backslash";
    return true;
}

// "spam/ham", "/usr/bin", "root=/dev", "~/notes", "X11/bin"; not the last of "/usr/bin/", and
// nothing between numbers or capitals: "I/O", "1/2".
bool read_slash(const Cursor& cursor, Found& found) {
    const char before = cursor.before();
    const char after = cursor.peek(1);
    const bool has_word = cursor.letter(1) > 0 || (after == '.' && cursor.letter(2) > 0) ||
                          (after == '*' && cursor.is_joined_before()) ||
                          (is_digit(after) && !is_digit(before));
    if (!has_word) return false;
    std::size_t n_digits = 0;
    while (is_digit(cursor.before(n_digits + 1))) ++n_digits;
    const bool is_word_before = cursor.is_joined_before() &&
                                !is_digit(cursor.before(n_digits + 1)) &&
                                cursor.is_joined_before(n_digits);
    const bool is_path =
        begins_word(cursor) || before == '~' || before == '.' || before == '*' || before == '=';
    if (!is_word_before && !is_path) return false;
    if (is_upper(before) && is_upper(after) && !is_lower(cursor.peek(2))) return false;
    found.length = 1;
    found.words = "slash";
    return true;
}

// "readme.txt", "alt.folklore", "7.x"; not "a.m.", "end.The".
bool is_dot_inside(const Cursor& cursor) {
    if (cursor.peek(1) == '*') {
        const char next = cursor.peek(2);
        const bool goes_on = next == ' ' ? is_lower(cursor.peek(3)) : !is_blank_or_end(next);
        return is_letter(cursor.before()) && goes_on;
    }
    const std::string_view last = cursor.letters(1);
    if (last.empty() || cursor.before() == '*') return !last.empty();
    const bool is_initial = is_letter(cursor.before()) && !cursor.is_joined_before(1);
    if (!cursor.is_joined_before() || is_initial) return false;
    return cursor.run(is_lower, 1) == last.size() || find_lower(EXTENSIONS, last) != nullptr;
}

// ".us", ".EXE", ".Xauthority", "./configure", "../lib"; not " .Then".
bool is_dot_before(const Cursor& cursor) {
    if (!begins_word(cursor)) return cursor.before() == '/' && cursor.letter(1) > 0;
    if (cursor.peek(1) == '/' || cursor.starts_with("./", 1)) return true;
    const char first = cursor.peek(1);
    const char second = cursor.peek(2);
    return is_lower(first) || (is_upper(first) && is_upper(second)) || first == 'X';
}

bool read_dot(const Cursor& cursor, Found& found) {
    if (!is_dot_inside(cursor) && !is_dot_before(cursor)) return false;
    found.length = 1;
    found.words = "dot";
    return true;
}

// "main_v2"
bool read_underscore(const Cursor& cursor, Found& found) {
    if (!cursor.is_joined_before() || !cursor.is_joined(1)) return false;
    found.length = 1;
    found.words = "underscore";
    return true;
}

// "-n", "--with-x"; not the ending "-ing", nor "-I said".
bool read_option(const Cursor& cursor, Found& found) {
    if (!begins_word(cursor) || cursor.before() == ',') return false;
    const bool is_short = is_letter(cursor.peek(1)) && cursor.peek(1) != 'I' &&
                          !cursor.is_joined(2) && cursor.apostrophe(2) == 0 &&
                          cursor.peek(2) != '-';
    const bool is_long =
        cursor.peek(1) == '-' && is_lower(cursor.peek(2)) && is_lower(cursor.peek(3));
    if (!is_short && !is_long) return false;
    found.length = is_long ? 2 : 1;
    found.words = is_long ? "dash dash" : "dash";
    return true;
}

// "an A-", "a B-"
bool read_grade(const Cursor& cursor, Found& found) {
    const char grade = cursor.before();
    if (grade < 'A' || grade > 'F' || cursor.before(2) != ' ') return false;
    const std::string_view article = cursor.word_before(2);
    if ((article != "a" && article != "an") || cursor.is_joined(1) || cursor.dash(1) > 0)
        return false;
    found.length = 1;
    found.words = "minus";
    return true;
}

bool read_asterisk(const Cursor& cursor, Found& found) {
    return read_operator(cursor, found) || read_stress(cursor, found) ||
           read_silent_asterisk(cursor, found) || read_wildcard(cursor, found);
}

bool read_one_mark(const Cursor& cursor, Found& found) {
    switch (cursor.peek()) {
        case '*': return read_asterisk(cursor, found);
        case '<': return read_address_in_brackets(cursor, found) || read_operator(cursor, found);
        case '>': return read_quotation(cursor, found) || read_operator(cursor, found);
        case '|': return read_quotation(cursor, found);
        case '#': return read_hash(cursor, found);
        case '+': return read_plus(cursor, found);
        case '~': return read_tilde(cursor, found);
        case '\\': return read_backslash(cursor, found);
        case '/': return read_operator(cursor, found) || read_slash(cursor, found);
        case '.': return read_dot(cursor, found);
        case '_': return read_underscore(cursor, found);
        case '-':
            return read_operator(cursor, found) || read_option(cursor, found) ||
                   read_grade(cursor, found);
        default: return read_operator(cursor, found);
    }
}

}  // namespace

void read_mark(const Cursor& cursor, Found& found) {
    if (!read_rule(cursor, found)) read_one_mark(cursor, found);
}

// "α", "√", "20º", "(tm)"
void read_named_mark(const Cursor& cursor, Found& found) {
    const Row* row = cursor.find_row(NAMED_MARKS, 0);
    if (row == nullptr) return;
    if (row->kind == Kind::after && !is_digit(cursor.before())) return;
    say_sign(cursor, *row, found);
}

// "and/or", "his/her", "w/o"
void read_slashed_words(const Cursor& cursor, Found& found) {
    const std::size_t slash = cursor.run(is_letter);
    if (cursor.peek(slash) != '/' || cursor.before() == '/' || cursor.before() == '.') return;
    const std::size_t length = slash + 1 + cursor.run(is_letter, slash + 1);
    if (cursor.peek(length) == '/' || cursor.is_joined(length)) return;
    const Row* row = find_lower(SLASHED_WORDS, cursor.part(0, length));
    if (row == nullptr) return;
    found.length = length;
    found.words = row->spoken();
}

}  // namespace kavi::everyday

// Marks of mail, manuals and the web that are said with their names; which rule reads a mark.

#include "marks.h"

namespace kavi::everyday {

namespace {

// "*.txt", "news.*", "NNTP-*"
bool read_wildcard(const Place& place, Found& found) {
    const auto joins = [](char c) { return c == '.' || c == '/' || c == '-' || c == '_'; };
    const char before = place.before();
    const bool is_last = joins(before) && !is_blank_or_end(place.before(2));
    const bool is_first = begins_word(place) && joins(place.peek(1)) && place.is_joined(2);
    if (!is_last && !is_first) return false;
    found.length = 1;
    found.words = "star";
    return true;
}

// "C#" is sharp; "at # 5", "my # is" are a number; "#tag" is a hash, "press # to" the key.
bool read_hash(const Place& place, Found& found) {
    const char before = place.before();
    found.length = 1;
    if (before >= 'A' && before <= 'G' && !is_letter(place.before(2)) && !place.is_joined(1)) {
        found.words = "sharp";
    } else if (place.peek(1) == ' ' && is_digit(place.peek(2)) && before == ' ' &&
               !place.begins_line()) {
        found.words = "number";
    } else if (begins_word(place) && place.letter(1) > 0) {
        found.words = "hash";
    } else if (const Row* row = find_lower(BEFORE_HASH, place.word_before());
               row != nullptr && before == ' ' && is_blank_or_end(place.peek(1))) {
        found.words = row->spoken();
    } else {
        found.length = 0;
    }
    return found.length > 0;
}

// "~/notes", "~bob"; alone it is an ornament.
bool read_tilde(const Place& place, Found& found) {
    const bool is_name = begins_word(place) && (place.peek(1) == '/' || place.letter(1) > 0);
    found.length = 1;
    if (is_name) found.words = "tilde";
    return true;
}

// "C:\temp", "\alpha"
bool read_backslash(const Place& place, Found& found) {
    if (!place.is_joined(1)) return false;
    found.length = 1;
    found.words = "backslash";
    return true;
}

// "spam/ham", "/usr/bin", "root=/dev", "~/notes", "X11/bin"; not the last of "/usr/bin/", and
// nothing between numbers or capitals: "I/O", "1/2".
bool read_slash(const Place& place, Found& found) {
    const char before = place.before();
    const char after = place.peek(1);
    const bool has_word = place.letter(1) > 0 || (after == '.' && place.letter(2) > 0) ||
                          (after == '*' && place.is_joined_before()) ||
                          (is_digit(after) && !is_digit(before));
    if (!has_word) return false;
    std::size_t n_digits = 0;
    while (is_digit(place.before(n_digits + 1))) ++n_digits;
    const bool is_word_before = place.is_joined_before() && !is_digit(place.before(n_digits + 1)) &&
                                place.is_joined_before(n_digits);
    const bool is_path =
        begins_word(place) || before == '~' || before == '.' || before == '*' || before == '=';
    if (!is_word_before && !is_path) return false;
    if (is_upper(before) && is_upper(after) && !is_lower(place.peek(2))) return false;
    found.length = 1;
    found.words = "slash";
    return true;
}

// "readme.txt", "alt.folklore", "7.x"; not "a.m.", "end.The".
bool is_dot_inside(const Place& place) {
    if (place.peek(1) == '*') {
        const char next = place.peek(2);
        const bool goes_on = next == ' ' ? is_lower(place.peek(3)) : !is_blank_or_end(next);
        return is_letter(place.before()) && goes_on;
    }
    const std::string_view last = place.letters(1);
    if (last.empty() || place.before() == '*') return !last.empty();
    const bool is_initial = is_letter(place.before()) && !place.is_joined_before(1);
    if (!place.is_joined_before() || is_initial) return false;
    return place.run(is_lower, 1) == last.size() || find_lower(EXTENSIONS, last) != nullptr;
}

// ".us", ".EXE", ".Xauthority", "./configure", "../lib"; not " .Then".
bool is_dot_before(const Place& place) {
    if (!begins_word(place)) return place.before() == '/' && place.letter(1) > 0;
    if (place.peek(1) == '/' || place.starts_with("./", 1)) return true;
    const char first = place.peek(1);
    const char second = place.peek(2);
    return is_lower(first) || (is_upper(first) && is_upper(second)) || first == 'X';
}

bool read_dot(const Place& place, Found& found) {
    if (!is_dot_inside(place) && !is_dot_before(place)) return false;
    found.length = 1;
    found.words = "dot";
    return true;
}

// "main_v2"
bool read_underscore(const Place& place, Found& found) {
    if (!place.is_joined_before() || !place.is_joined(1)) return false;
    found.length = 1;
    found.words = "underscore";
    return true;
}

// "-n", "--with-x"; not the ending "-ing", nor "-I said".
bool read_option(const Place& place, Found& found) {
    if (!begins_word(place) || place.before() == ',') return false;
    const bool is_short = is_letter(place.peek(1)) && place.peek(1) != 'I' && !place.is_joined(2) &&
                          place.apostrophe(2) == 0 && place.peek(2) != '-';
    const bool is_long = place.peek(1) == '-' && is_lower(place.peek(2)) && is_lower(place.peek(3));
    if (!is_short && !is_long) return false;
    found.length = is_long ? 2 : 1;
    found.words = is_long ? "dash dash" : "dash";
    return true;
}

// "an A-", "a B-"
bool read_grade(const Place& place, Found& found) {
    const char grade = place.before();
    if (grade < 'A' || grade > 'F' || place.before(2) != ' ') return false;
    const std::string_view article = place.word_before(2);
    if ((article != "a" && article != "an") || place.is_joined(1) || place.dash(1) > 0)
        return false;
    found.length = 1;
    found.words = "minus";
    return true;
}

bool read_asterisk(const Place& place, Found& found) {
    return read_operator(place, found) || read_stress(place, found) ||
           read_silent_asterisk(place, found) || read_wildcard(place, found);
}

bool read_one_mark(const Place& place, Found& found) {
    switch (place.peek()) {
        case '*': return read_asterisk(place, found);
        case '<': return read_address_in_brackets(place, found) || read_operator(place, found);
        case '>': return read_quotation(place, found) || read_operator(place, found);
        case '|': return read_quotation(place, found);
        case '#': return read_hash(place, found);
        case '+': return read_plus(place, found);
        case '~': return read_tilde(place, found);
        case '\\': return read_backslash(place, found);
        case '/': return read_operator(place, found) || read_slash(place, found);
        case '.': return read_dot(place, found);
        case '_': return read_underscore(place, found);
        case '-':
            return read_operator(place, found) || read_option(place, found) ||
                   read_grade(place, found);
        default: return read_operator(place, found);
    }
}

}  // namespace

void read_mark(const Place& place, Found& found) {
    if (!read_rule(place, found)) read_one_mark(place, found);
}

// "α", "√", "20º", "(tm)"
void read_named_mark(const Place& place, Found& found) {
    const Row* row = place.find_row(NAMED_MARKS, 0);
    if (row == nullptr) return;
    if (row->kind == Kind::after && !is_digit(place.before())) return;
    say_sign(place, *row, found);
}

// "and/or", "his/her", "w/o"
void read_slashed_words(const Place& place, Found& found) {
    const std::size_t slash = place.run(is_letter);
    if (place.peek(slash) != '/' || place.before() == '/' || place.before() == '.') return;
    const std::size_t length = slash + 1 + place.run(is_letter, slash + 1);
    if (place.peek(length) == '/' || place.is_joined(length)) return;
    const Row* row = find_lower(SLASHED_WORDS, place.part(0, length));
    if (row == nullptr) return;
    found.length = length;
    found.words = row->spoken();
}

}  // namespace kavi::everyday

// Marks of ASCII in mail, in manuals and on the web: silent, or with their name.

#include "rules.h"
#include "tokens.h"

namespace kavi::everyday {

namespace {

// What the engine reads for nothing at all.
constexpr std::string_view SILENT = " ";

// The longest that is looked back for what a mark closes.
constexpr std::size_t LONGEST_SPAN = LOOK_BACK - 4;

bool is_blank_or_end(char c) {
    return c == ' ' || c == '\n' || c == '\t' || c == '\0';
}

// Whether a word may begin after `c`: no letter, no digit and no mark that joins.
bool may_precede_word(char c) {
    return is_blank_or_end(c) || c == '(' || c == '[' || c == '{' || c == '"' || c == '\'' ||
           c == '`' || c == ',';
}

// The same of what ends before the place; curly quotes and dashes are outside of ASCII.
bool begins_word(const Place& place) {
    const char before = place.before();
    return may_precede_word(before) || (is_outside_ascii(before) && !place.is_joined_before());
}

std::size_t run_of(const Place& place, char mark, std::size_t ahead, std::size_t longest) {
    std::size_t length = 0;
    while (length < longest && place.peek(ahead + length) == mark) ++length;
    return length;
}

void keep_silent(std::size_t length, Found& found) {
    found.length = length;
    found.words = SILENT;
}

// ---- Silent marks ----

// "=====", "*****", "~~~~": a rule across the page, four marks at a time: where a user's own word
// is in them, all that was looked at is looked at again.
bool read_rule(const Place& place, Found& found) {
    const char mark = place.peek();
    if (mark != '=' && mark != '*' && mark != '~' && mark != '>' && mark != '#') return false;
    constexpr std::size_t SHORTEST = 3;
    const std::size_t length = run_of(place, mark, 0, SHORTEST + 1);
    const bool goes_on = place.before(1) == mark && place.before(2) == mark;
    if (length < SHORTEST && !goes_on) return false;
    keep_silent(length, found);
    return true;
}

// Whether stress that begins so far ahead with a run of `length` asterisks ends near.
bool has_end_of_stress(const Place& place, std::size_t length) {
    for (std::size_t at = length; at < LONGEST_SPAN; ++at) {
        const char c = place.peek(at);
        if (c == '\0' || c == '\n') return false;
        if (c != '*') continue;
        const bool is_end = place.peek(at - 1) != ' ' &&
                            run_of(place, '*', at, length + 1) == length &&
                            !place.is_joined(at + length);
        if (is_end) return true;
        at += run_of(place, '*', at, LONGEST_SPAN) - 1;
    }
    return false;
}

// Whether stress begins near before the place, with a run of `length` asterisks; none is directly
// before it.
bool has_begin_of_stress(const Place& place, std::size_t length) {
    for (std::size_t back = 2; back < LONGEST_SPAN; ++back) {
        const char c = place.before(back);
        if (c == '\0' || c == '\n') return false;
        if (c != '*') continue;
        return place.before(back - 1) != ' ' && (place.before(back + 1) == '*') == (length == 2) &&
               !place.is_joined_before(back + length - 1);
    }
    return false;
}

// "*stress*", "**stress**": either end, where the other is in sight.
bool read_stress(const Place& place, Found& found) {
    const std::size_t length = run_of(place, '*', 0, 3);
    if (length > 2 || place.before() == '*') return false;
    const char after = place.peek(length);
    const bool begins =
        begins_word(place) && !is_blank_or_end(after) && has_end_of_stress(place, length);
    const bool ends = !begins && !is_blank_or_end(place.before()) && !place.is_joined(length) &&
                      has_begin_of_stress(place, length);
    if (!begins && !ends) return false;
    keep_silent(length, found);
    return true;
}

// "* item" at the begin of a line, the other side of a box at its end, "F***ing", "sh**".
bool read_silent_asterisk(const Place& place, Found& found) {
    const std::size_t length = run_of(place, '*', 0, 2);
    const bool is_bullet = length == 1 && place.begins_line() && place.peek(1) == ' ';
    const bool is_footnote = length == 1 && place.begins_line() && place.is_joined(1);
    const bool is_left_out = length > 1 && is_letter(place.before());
    const bool is_edge = length == 1 && place.before() == ' ' && place.peek(1) == '\n';
    if (!is_bullet && !is_edge && !is_footnote && !is_left_out) return false;
    keep_silent(length, found);
    return true;
}

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

// "<bob@example.com>", "<http://example.com>": the address alone.
bool read_address_in_brackets(const Place& place, Found& found) {
    const Place inside(place.part(0, LOOK_AHEAD), 1);
    read_address(inside, found);
    if (found.length > 0 && place.peek(1 + found.length) == '>') {
        found.length += 2;
        return true;
    }
    found = Found();
    return false;
}

// "<name>", "<1234@host>": the bracket that closes it; the engine says nothing for the first.
bool closes_bracket(const Place& place) {
    const auto is_of_name = [](char c) {
        return is_letter(c) || is_digit(c) || is_outside_ascii(c) || c == '.' || c == '-' ||
               c == '_' || c == '@' || c == '/' || c == ':' || c == '+';
    };
    std::size_t back = 1;
    while (back < LOOK_BACK && is_of_name(place.before(back))) ++back;
    return back > 1 && place.before(back) == '<';
}

// "> quoted", ">> quoted", "| quoted"
bool read_quotation(const Place& place, Found& found) {
    const char after = place.peek(1);
    const bool is_quotation = place.begins_line() && (is_blank_or_end(after) || after == '>' ||
                                                      (place.peek() == '>' && is_letter(after)));
    if (!is_quotation && (place.peek() != '>' || !closes_bracket(place))) return false;
    keep_silent(1, found);
    return true;
}

// ---- Operators ----

struct Gap {
    std::size_t before;
    std::size_t after;  // where the right operand begins
};

bool is_quantity_after(const Place& place, std::size_t ahead) {
    const char c = place.peek(ahead);
    if (is_digit(c) || c == '(') return true;
    if ((c == '-' || c == '.' || c == '$') && is_digit(place.peek(ahead + 1))) return true;
    const std::size_t length = place.letter(ahead);
    return length > 0 && place.word(ahead) == length && place.apostrophe(ahead + length) == 0;
}

bool is_quantity_before(const Place& place, std::size_t back) {
    const char c = place.before(back + 1);
    if (is_digit(c) || c == ')') return true;
    if (!is_letter(c)) return false;
    const char last = place.before(back + 2);
    return !is_letter(last) && last != '\'' && !is_outside_ascii(last);
}

bool is_word_after(const Place& place, std::size_t ahead) {
    const char c = place.peek(ahead);
    return place.is_joined(ahead) || c == '(' || c == '[' || c == '{' || c == '"' || c == '\'' ||
           c == '$' || c == '-' || c == '/' || c == '.';
}

bool is_word_before(const Place& place, std::size_t back) {
    const char c = place.before(back + 1);
    return place.is_joined_before(back) || c == ')' || c == ']' || c == '}' || c == '"' ||
           c == '\'';
}

// "(> 5)", "<10"; no bracket round a number, nor a quotation.
bool is_comparison_alone(const Place& place, std::size_t length) {
    const std::size_t blanks = length + place.blanks(length);
    const std::size_t at = blanks + (place.peek(blanks) == '$' ? 1 : 0);
    if (!is_digit(place.peek(at)) || !may_precede_word(place.before())) return false;
    if (place.peek() == '>') return !place.begins_line();
    const auto is_inside = [](char c) { return !is_blank_or_end(c) && c != '>'; };
    return place.peek(at + place.run(is_inside, at)) != '>';
}

bool fits_operator(const Place& place, const Row& row, const Gap& gap) {
    const bool has_blanks = gap.before > 0;
    if (has_blanks != (gap.after > row.written.size())) return false;
    const bool has_words = is_word_before(place, gap.before) && is_word_after(place, gap.after);
    if (row.kind == Kind::words) return has_words;
    const bool has_quantities =
        is_quantity_before(place, gap.before) && is_quantity_after(place, gap.after);
    const bool has_numbers =
        is_digit(place.before(gap.before + 1)) && is_digit(place.peek(gap.after));
    // Without blanks "a<b>c" is markup.
    if (row.kind == Kind::compared) return has_blanks ? has_words : has_numbers;
    if (row.written == "/") return has_numbers && has_blanks;
    // "6 - 4 = 2", but no range and no score.
    if (row.written == "-") {
        const std::size_t end = gap.after + number_at(place, gap.after).length;
        return has_numbers && has_blanks && place.peek(end + place.blanks(end)) == '=';
    }
    // "f**k" is no power.
    const bool has_number =
        is_digit(place.before(gap.before + 1)) || is_digit(place.peek(gap.after));
    if (row.written == "**" && !has_number) return false;
    // "^C^Z" are keys.
    return has_quantities && !(is_upper(place.before()) && is_upper(place.peek(gap.after)));
}

bool read_operator(const Place& place, Found& found) {
    const Row* row = place.find_row(OPERATORS, 0);
    if (row == nullptr) return false;
    const std::size_t length = row->written.size();
    Gap gap = {0, length + place.blanks(length)};
    while (place.before(gap.before + 1) == ' ') ++gap.before;
    const bool is_read = fits_operator(place, *row, gap) ||
                         (row->kind == Kind::compared && is_comparison_alone(place, length));
    if (!is_read) return false;
    found.length = length;
    found.words = row->spoken;
    // "File > Save": a way through menus.
    const bool is_menu = row->written == ">" && gap.before > 0 && is_upper(place.peek(gap.after)) &&
                         is_lower(place.peek(gap.after + 1));
    if (is_menu) found.words = ", ";
    return true;
}

// "C++", "60+", "R+D", "5 + 3"
bool read_plus(const Place& place, Found& found) {
    const bool is_glued = place.is_joined_before() || place.before() == ')' ||
                          (place.before() == '+' && place.is_joined_before(1));
    const bool is_spaced = place.before() == ' ' && is_word_before(place, 1) &&
                           place.peek(1) == ' ' && is_word_after(place, 2);
    if (!is_glued && !is_spaced) return false;
    found.length = 1;
    found.words = "plus";
    return true;
}

// ---- Names of marks ----

// "C#" is sharp; "at # 5" is a number; "#tag" a hash.
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
    } else {
        found.length = 0;
    }
    return found.length > 0;
}

// "~/notes", "~bob"; alone it is an ornament.
bool read_tilde(const Place& place, Found& found) {
    const bool is_name = begins_word(place) && (place.peek(1) == '/' || place.letter(1) > 0);
    found.length = 1;
    found.words = is_name ? "tilde" : SILENT;
    return true;
}

// "spam/ham", "/usr/bin", "~/notes", "X11/bin"; not the last of "/usr/bin/", and nothing between
// numbers or capitals: "I/O", "1/2".
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
    const bool is_path = begins_word(place) || before == '~' || before == '.' || before == '*';
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
    return place.run(is_lower, 1) == last.size() ||
           find(EXTENSIONS, in_lower_case(last)) != nullptr;
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
        case '/': return read_operator(place, found) || read_slash(place, found);
        case '.': return read_dot(place, found);
        case '-': return read_operator(place, found) || read_option(place, found);
        default: return read_operator(place, found);
    }
}

}  // namespace

void read_mark(const Place& place, Found& found) {
    if (!read_rule(place, found)) read_one_mark(place, found);
}

// "α", "√", "20º"
void read_named_mark(const Place& place, Found& found) {
    if (!is_outside_ascii(place.peek())) return;
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
    const Row* row = find(SLASHED_WORDS, in_lower_case(place.part(0, length)));
    if (row == nullptr) return;
    found.length = length;
    found.words = row->spoken;
}

}  // namespace kavi::everyday

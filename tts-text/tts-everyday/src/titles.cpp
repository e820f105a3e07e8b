// Titles and abbreviations, with or without their full stop.

#include <array>

#include "rules.h"

namespace kavi::everyday {

namespace {

// Takes the full stop after `length` characters too, unless it may end the sentence.
void take(const Cursor& cursor, std::size_t length, std::string_view spoken, bool may_end,
          Found& found) {
    const bool keeps_stop = may_end && cursor.may_end_sentence(length + 1) &&
                            find(COMPASS, cursor.letters(length + 2)) == nullptr;  // "Ave. NW"
    found.length = length + (cursor.peek(length) == '.' && !keeps_stop ? 1 : 0);
    found.say_name(0, length, spoken);
    take_genitive(cursor, found);
}

// A number, or a Roman numeral that is not "I".
bool is_before_number(const Cursor& cursor, std::size_t ahead) {
    const std::size_t at = ahead + cursor.blanks(ahead);
    if (is_digit(cursor.peek(at))) return true;
    const std::string_view numeral = cursor.letters(at);
    return (numeral != "I" && value_of_roman(numeral) > 0) || value_of_small_roman(numeral) > 0;
}

// "Wed, Oct 02", "Sat 12 May", "(1.05am, Sat, BBC2)"
bool is_date_part(const Cursor& cursor, std::size_t ahead) {
    const bool has_comma = cursor.peek(ahead) == ',';
    const std::size_t at = ahead + (has_comma ? 1 : 0);
    if (has_comma && cursor.before(2) == ',' && cursor.peek(at) == ' ') return true;
    if (cursor.peek(at) != ' ') return false;
    const std::string_view day = cursor.digits(at + 1);
    if (day.empty()) return month_number(cursor.letters(at + 1)) > 0;
    const std::size_t end = at + 1 + day.size();  // not "Sun 5 times"
    return cursor.peek(end) != ' ' || !is_lower(cursor.peek(end + 1));
}

// The day of the week, abbreviated, at offset `ahead`, or null.
const Row* day_at(const Cursor& cursor, std::size_t ahead) {
    const Row* row = find(TITLES, cursor.letters(ahead));
    return row != nullptr && row->kind == Kind::before_date ? row : nullptr;
}

// "Mon-Fri", "Tue.–Thu."
bool read_days_of_week(const Cursor& cursor, Found& found) {
    std::size_t dash = cursor.letters().size();
    if (cursor.peek(dash) == '.') ++dash;
    const std::size_t second = dash + cursor.dash(dash);
    if (second == dash) return false;
    const Row* first = day_at(cursor, 0);
    const Row* last = day_at(cursor, second);
    if (first == nullptr || last == nullptr) return false;
    say(first->spoken(), found.words);
    say("to", found.words);
    say(last->spoken(), found.words);
    const std::size_t end = second + last->written().size();
    found.length = end + (cursor.peek(end) == '.' && !cursor.may_end_sentence(end + 1) ? 1 : 0);
    return true;
}

bool ends_sentence(Kind kind) {
    return kind == Kind::may_end || kind == Kind::before_date || kind == Kind::after_ordinal ||
           kind == Kind::after;
}

// "U.S.", "J. K. Rowling", "p.m.": single letters, each with a full stop.
void read_initials(const Cursor& cursor, Found& found) {
    std::size_t length = 0;
    std::string words;
    constexpr std::size_t LONGEST = 32;  // so that a chain of them is not read from each
    while (length < LONGEST && is_letter(cursor.peek(length)) && cursor.peek(length + 1) == '.') {
        say(cursor.part(length, 1), words);
        length += 2;
    }
    const bool is_of_number = length == 2 && is_upper(cursor.peek()) && is_digit(cursor.peek(2)) &&
                              cursor.before() != '.' && !cursor.is_joined_before();
    if (is_of_number) {  // "section B.2"
        found.length = 2;
        found.words = words + " point";
        return;
    }
    // "a CD-R. Our", but "J.-P. Sartre"
    const bool is_after_hyphen = cursor.before() == '-' && is_letter(cursor.before(2));
    const bool is_initial = length == 2 && is_upper(cursor.peek()) && cursor.peek(2) == ' ' &&
                            (is_upper(cursor.peek(3)) || cursor.peek(3) == '(') &&
                            cursor.peek() != 'I' && !is_after_hyphen;
    if ((length < 4 && !is_initial) || is_letter(cursor.peek(length))) return;
    // The last full stop is the sentence's too where that may end; after an initial it does not.
    const bool ends =
        !is_initial && cursor.may_end_sentence(length) && !is_upper(cursor.peek(length + 1));
    found.length = length - (ends ? 1 : 0);
    found.words = words;
    if (!ends) take_genitive(cursor, found);
}

// "2nd ed."
bool is_after_ordinal(const Cursor& cursor) {
    if (cursor.before() != ' ') return false;
    const std::string_view suffix = cursor.word_before();
    return is_digit(cursor.before(2 + suffix.size())) && find(ORDINAL_SUFFIXES, suffix) != nullptr;
}

// "Oak St.", "21st St."; not "Mount St. Helens"
bool is_after_street_name(const Cursor& cursor) {
    const std::string_view before = cursor.word_before();
    const bool is_after_name =
        !before.empty() && is_upper(before[0]) && find(BEFORE_SAINT, before) == nullptr;
    return is_after_name || is_after_ordinal(cursor);
}

// "St. John", "Mount St. Helens" are saints, "Main St.", "21st St. NW" streets; after "Oak St." a
// sentence may begin.
bool read_saint_or_street(const Cursor& cursor, Found& found) {
    if (!cursor.starts_with("St.")) return false;
    const bool is_saint =
        cursor.peek(3) == ' ' && is_upper(cursor.peek(4)) && !is_after_street_name(cursor);
    if (is_saint) {
        take(cursor, 2, "saint", false, found);
    } else {
        take(cursor, 2, "street", true, found);
    }
    return true;
}

// "St Pancras", "12 High St near"; not "Main St Cafe"
bool read_bare_saint(const Cursor& cursor, Found& found) {
    if (!cursor.starts_with("St") || cursor.is_joined(2)) return false;
    const bool is_street = is_after_street_name(cursor);
    const bool has_name = cursor.peek(2) == ' ' && is_upper(cursor.peek(3));
    if (has_name ? is_street || !is_lower(cursor.peek(4)) : !is_street) return false;
    take(cursor, 2, has_name ? "saint" : "street", false, found);
    return true;
}

// "Oak", not "A" or "OAK"
bool is_capitalised(std::string_view word) {
    return word.size() > 2 && is_upper(word[0]) && is_lower(word[1]);
}

// "King Dr. across", "Watson Dr and": after a name and before no other, a street.
bool read_drive(const Cursor& cursor, Found& found) {
    if (!cursor.starts_with("Dr") || is_letter(cursor.peek(2)) || cursor.before() != ' ')
        return false;
    const bool is_after_name = is_capitalised(cursor.word_before());
    const bool is_bare = cursor.peek(2) == ' ' && is_lower(cursor.peek(3));
    const bool has_stop =
        cursor.peek(2) == '.' && !is_upper(cursor.peek(4)) &&
        (is_lower(cursor.peek(4)) || cursor.peek(3) == ',' || cursor.may_end_sentence(3));
    if (!is_after_name || (!is_bare && !has_stop)) return false;
    take(cursor, 2, "drive", true, found);
    return true;
}

// "Sr. Agnes"; after a name it is a senior
bool read_sister(const Cursor& cursor, Found& found) {
    if (!cursor.starts_with("Sr.")) return false;
    const std::string_view name = cursor.word_before();
    const bool is_after_name = !name.empty() && is_upper(name[0]) && cursor.before(2) != '.';
    if (is_after_name || cursor.peek(3) != ' ' || !is_upper(cursor.peek(4))) return false;
    take(cursor, 2, "sister", false, found);
    return true;
}

// "Keats, b. 1795", "est. 1901"
bool read_word_of_life(const Cursor& cursor, Found& found) {
    const std::string_view letters = cursor.letters();
    const Row* row = find(WORDS_OF_LIFE, letters);
    if (row == nullptr || cursor.peek(letters.size()) != '.') return false;
    const std::size_t at = letters.size() + 1 + cursor.blanks(letters.size() + 1);
    const std::string_view year = cursor.digits(at);
    const std::size_t end = at + year.size();
    const bool goes_on =
        cursor.is_joined(end) || (cursor.peek(end) == ',' && is_digit(cursor.peek(end + 1)));
    const char before = cursor.before() == ' ' ? cursor.before(2) : cursor.before();
    const bool is_after_mark = before == '(' || before == ',' || before == ';' || before == ':';
    if (!may_be_year(year) || goes_on || (letters.size() == 1 && !is_after_mark)) return false;
    take(cursor, letters.size(), row->spoken(), false, found);
    return true;
}

// "Did he? No. 5 had", "Say no. 9 times out of 10"
bool is_answer(const Cursor& cursor) {
    return cursor.before() == ' ' &&
           (cursor.before(2) == '?' || find_lower(BEFORE_ANSWER, cursor.word_before()) != nullptr);
}

bool fits(const Cursor& cursor, const Row& row) {
    const std::size_t length = row.written().size();
    const char after = cursor.peek(length);
    const bool is_of_path =
        after == '.' && is_lower(row.written()[0]) &&
        (cursor.before() == '.' || cursor.before() == '/' || is_lower(cursor.peek(length + 1)));
    if (is_of_path) return false;  // "misc.c"
    if (row.kind == Kind::anywhere) return !cursor.is_joined(length);
    // Kinds whose full stop may be left out: after a full stop, some have another condition.
    const bool is_day = row.kind == Kind::before_date;
    if (is_day && (cursor.word_before() == "the" || cursor.word_before() == "The")) return false;
    if (is_day && after != '.') return is_date_part(cursor, length);
    if (row.kind == Kind::after && after != '.')
        return !cursor.is_joined(length) && cursor.before() == ' ' &&
               is_capitalised(cursor.word_before());
    if (row.kind == Kind::both)
        return is_before_number(cursor, length + (after == '.' ? 1 : 0)) && !is_letter(after);
    if (after != '.') return row.kind == Kind::never && (after == ' ' || after == ',');
    switch (row.kind) {
        case Kind::before_number:
            if ((row.written() == "No" || row.written() == "no") && is_answer(cursor)) return false;
            return is_before_number(cursor, length + 1);
        case Kind::before_name:
            return cursor.peek(length + 1) == ' ' && is_upper(cursor.peek(length + 2));
        case Kind::inside:
            return is_lower(cursor.peek(length + 2)) || is_before_number(cursor, length + 1);
        case Kind::after_ordinal: return is_after_ordinal(cursor);
        default: return true;
    }
}

// Where BARE_BEGINS tells of a word, by its first three letters.
constexpr std::size_t N_BEGINS = 256;
constexpr std::size_t slot_of_begin(std::string_view word) {
    constexpr unsigned FACTOR = 37;
    unsigned slot = 0;
    for (const char c : word.substr(0, 3)) slot = slot * FACTOR + static_cast<unsigned char>(c);
    return slot % N_BEGINS;
}

// Whether a title that may have no full stop begins so: most other words do not.
constexpr auto BARE_BEGINS = [] {
    std::array<bool, N_BEGINS> begins{};
    begins[slot_of_begin("St")] = true;  // "St Pancras"
    for (const Row& row : TITLES) {
        const std::string_view written = row.written();
        const std::string_view word = written.substr(0, written.find_first_of(" ."));
        if (is_bare_title(row)) begins[slot_of_begin(word)] = true;
    }
    return begins;
}();

bool read_row(const Cursor& cursor, Found& found) {
    const Row* row = cursor.find_row(TITLES, 0, [&](const Row& r) { return fits(cursor, r); });
    if (row == nullptr) return false;
    const std::size_t length = row->written().size();
    if (row->kind == Kind::anywhere) {
        found.length = length;
        found.say_name(0, length, row->spoken());
    } else {
        take(cursor, length, row->spoken(), ends_sentence(row->kind), found);
    }
    return true;
}

}  // namespace

void take_genitive(const Cursor& cursor, Found& found) {
    const std::size_t mark = cursor.apostrophe(found.length);
    const std::size_t end = found.length + mark + 1;
    if (mark > 0 && cursor.peek(end - 1) == 's' && !cursor.is_joined(end)) {
        found.words += 's';
        found.length = end;
    }
}

void read_title(const Cursor& cursor, Found& found) {
    if (read_drive(cursor, found) || read_sister(cursor, found) ||
        read_compass_point(cursor, found) || read_word_of_life(cursor, found) ||
        read_days_of_week(cursor, found) || read_row(cursor, found))
        return;
    if (!read_saint_or_street(cursor, found)) read_initials(cursor, found);
}

void read_bare_title(const Cursor& cursor, Found& found) {
    if (!BARE_BEGINS[slot_of_begin(cursor.letters())]) return;
    if (read_drive(cursor, found) || read_days_of_week(cursor, found)) return;
    if (!read_bare_saint(cursor, found)) read_row(cursor, found);
}

}  // namespace kavi::everyday

// Titles and abbreviations, with or without their full stop.

#include <array>

#include "rules.h"

namespace kavi::everyday {

namespace {

// Takes the full stop after `length` characters too, unless it may end the sentence.
void take(const Place& place, std::size_t length, std::string_view spoken, bool may_end,
          Found& found) {
    const bool keeps_stop = may_end && place.may_end_sentence(length + 1) &&
                            find(COMPASS, place.letters(length + 2)) == nullptr;  // "Ave. NW"
    found.length = length + (place.peek(length) == '.' && !keeps_stop ? 1 : 0);
    found.say_name(0, length, spoken);
    take_genitive(place, found);
}

// A number, or a Roman numeral that is not "I".
bool is_before_number(const Place& place, std::size_t ahead) {
    const std::size_t at = ahead + place.blanks(ahead);
    if (is_digit(place.peek(at))) return true;
    const std::string_view numeral = place.letters(at);
    return (numeral != "I" && value_of_roman(numeral) > 0) || value_of_small_roman(numeral) > 0;
}

// "Wed, Oct 02", "Sat 12 May", "(1.05am, Sat, BBC2)"
bool is_date_part(const Place& place, std::size_t ahead) {
    const bool has_comma = place.peek(ahead) == ',';
    const std::size_t at = ahead + (has_comma ? 1 : 0);
    if (has_comma && place.before(2) == ',' && place.peek(at) == ' ') return true;
    if (place.peek(at) != ' ') return false;
    const std::string_view day = place.digits(at + 1);
    if (day.empty()) return month_number(place.letters(at + 1)) > 0;
    const std::size_t end = at + 1 + day.size();  // not "Sun 5 times"
    return place.peek(end) != ' ' || !is_lower(place.peek(end + 1));
}

// The day of the week, abbreviated, at offset `ahead`, or null.
const Row* day_at(const Place& place, std::size_t ahead) {
    const Row* row = find(TITLES, place.letters(ahead));
    return row != nullptr && row->kind == Kind::before_date ? row : nullptr;
}

// "Mon-Fri", "Tue.–Thu."
bool read_days_of_week(const Place& place, Found& found) {
    std::size_t dash = place.letters().size();
    if (place.peek(dash) == '.') ++dash;
    const std::size_t second = dash + place.dash(dash);
    if (second == dash) return false;
    const Row* first = day_at(place, 0);
    const Row* last = day_at(place, second);
    if (first == nullptr || last == nullptr) return false;
    say(first->spoken(), found.words);
    say("to", found.words);
    say(last->spoken(), found.words);
    const std::size_t end = second + last->written().size();
    found.length = end + (place.peek(end) == '.' && !place.may_end_sentence(end + 1) ? 1 : 0);
    return true;
}

bool ends_sentence(Kind kind) {
    return kind == Kind::may_end || kind == Kind::before_date || kind == Kind::after_ordinal ||
           kind == Kind::after;
}

// "U.S.", "J. K. Rowling", "p.m.": single letters, each with a full stop.
void read_initials(const Place& place, Found& found) {
    std::size_t length = 0;
    std::string words;
    constexpr std::size_t LONGEST = 32;  // so that a chain of them is not read from each
    while (length < LONGEST && is_letter(place.peek(length)) && place.peek(length + 1) == '.') {
        say(place.part(length, 1), words);
        length += 2;
    }
    const bool is_of_number = length == 2 && is_upper(place.peek()) && is_digit(place.peek(2)) &&
                              place.before() != '.' && !place.is_joined_before();
    if (is_of_number) {  // "section B.2"
        found.length = 2;
        found.words = words + " point";
        return;
    }
    // "a CD-R. Our", but "J.-P. Sartre"
    const bool is_after_hyphen = place.before() == '-' && is_letter(place.before(2));
    const bool is_initial = length == 2 && is_upper(place.peek()) && place.peek(2) == ' ' &&
                            (is_upper(place.peek(3)) || place.peek(3) == '(') &&
                            place.peek() != 'I' && !is_after_hyphen;
    if ((length < 4 && !is_initial) || is_letter(place.peek(length))) return;
    // The last full stop is the sentence's too where that may end; after an initial it does not.
    const bool ends =
        !is_initial && place.may_end_sentence(length) && !is_upper(place.peek(length + 1));
    found.length = length - (ends ? 1 : 0);
    found.words = words;
    if (!ends) take_genitive(place, found);
}

// "2nd ed."
bool is_after_ordinal(const Place& place) {
    if (place.before() != ' ') return false;
    const std::string_view suffix = place.word_before();
    return is_digit(place.before(2 + suffix.size())) && find(ORDINAL_SUFFIXES, suffix) != nullptr;
}

// "Oak St.", "21st St."; not "Mount St. Helens"
bool is_after_street_name(const Place& place) {
    const std::string_view before = place.word_before();
    const bool is_after_name =
        !before.empty() && is_upper(before[0]) && find(BEFORE_SAINT, before) == nullptr;
    return is_after_name || is_after_ordinal(place);
}

// "St. John", "Mount St. Helens" are saints, "Main St.", "21st St. NW" streets; after "Oak St." a
// sentence may begin.
bool read_saint_or_street(const Place& place, Found& found) {
    if (!place.starts_with("St.")) return false;
    const bool is_saint =
        place.peek(3) == ' ' && is_upper(place.peek(4)) && !is_after_street_name(place);
    if (is_saint) {
        take(place, 2, "saint", false, found);
    } else {
        take(place, 2, "street", true, found);
    }
    return true;
}

// "St Pancras", "12 High St near"; not "Main St Cafe"
bool read_bare_saint(const Place& place, Found& found) {
    if (!place.starts_with("St") || place.is_joined(2)) return false;
    const bool is_street = is_after_street_name(place);
    const bool has_name = place.peek(2) == ' ' && is_upper(place.peek(3));
    if (has_name ? is_street || !is_lower(place.peek(4)) : !is_street) return false;
    take(place, 2, has_name ? "saint" : "street", false, found);
    return true;
}

// "Oak", not "A" or "OAK"
bool is_capitalised(std::string_view word) {
    return word.size() > 2 && is_upper(word[0]) && is_lower(word[1]);
}

// "King Dr. across", "Watson Dr and": after a name and before no other, a street.
bool read_drive(const Place& place, Found& found) {
    if (!place.starts_with("Dr") || is_letter(place.peek(2)) || place.before() != ' ') return false;
    const bool is_after_name = is_capitalised(place.word_before());
    const bool is_bare = place.peek(2) == ' ' && is_lower(place.peek(3));
    const bool has_stop =
        place.peek(2) == '.' && !is_upper(place.peek(4)) &&
        (is_lower(place.peek(4)) || place.peek(3) == ',' || place.may_end_sentence(3));
    if (!is_after_name || (!is_bare && !has_stop)) return false;
    take(place, 2, "drive", true, found);
    return true;
}

// "Sr. Agnes"; after a name it is a senior
bool read_sister(const Place& place, Found& found) {
    if (!place.starts_with("Sr.")) return false;
    const std::string_view name = place.word_before();
    const bool is_after_name = !name.empty() && is_upper(name[0]) && place.before(2) != '.';
    if (is_after_name || place.peek(3) != ' ' || !is_upper(place.peek(4))) return false;
    take(place, 2, "sister", false, found);
    return true;
}

// "Keats, b. 1795", "est. 1901"
bool read_word_of_life(const Place& place, Found& found) {
    const std::string_view letters = place.letters();
    const Row* row = find(WORDS_OF_LIFE, letters);
    if (row == nullptr || place.peek(letters.size()) != '.') return false;
    const std::size_t at = letters.size() + 1 + place.blanks(letters.size() + 1);
    const std::string_view year = place.digits(at);
    const std::size_t end = at + year.size();
    const bool goes_on =
        place.is_joined(end) || (place.peek(end) == ',' && is_digit(place.peek(end + 1)));
    const char before = place.before() == ' ' ? place.before(2) : place.before();
    const bool is_after_mark = before == '(' || before == ',' || before == ';' || before == ':';
    if (!may_be_year(year) || goes_on || (letters.size() == 1 && !is_after_mark)) return false;
    take(place, letters.size(), row->spoken(), false, found);
    return true;
}

// "Did he? No. 5 had", "Say no. 9 times out of 10"
bool is_answer(const Place& place) {
    return place.before() == ' ' &&
           (place.before(2) == '?' || find_lower(BEFORE_ANSWER, place.word_before()) != nullptr);
}

bool fits(const Place& place, const Row& row) {
    const std::size_t length = row.written().size();
    const char after = place.peek(length);
    const bool is_of_path =
        after == '.' && is_lower(row.written()[0]) &&
        (place.before() == '.' || place.before() == '/' || is_lower(place.peek(length + 1)));
    if (is_of_path) return false;  // "misc.c"
    if (row.kind == Kind::anywhere) return !place.is_joined(length);
    const bool is_day = row.kind == Kind::before_date;
    if (is_day && (place.word_before() == "the" || place.word_before() == "The")) return false;
    if (is_day && after != '.') return is_date_part(place, length);
    if (row.kind == Kind::after && after != '.')
        return !place.is_joined(length) && place.before() == ' ' &&
               is_capitalised(place.word_before());
    if (row.kind == Kind::both)
        return is_before_number(place, length + (after == '.' ? 1 : 0)) && !is_letter(after);
    if (after != '.') return row.kind == Kind::never && (after == ' ' || after == ',');
    switch (row.kind) {
        case Kind::before_number:
            if ((row.written() == "No" || row.written() == "no") && is_answer(place)) return false;
            return is_before_number(place, length + 1);
        case Kind::before_name:
            return place.peek(length + 1) == ' ' && is_upper(place.peek(length + 2));
        case Kind::inside:
            return is_lower(place.peek(length + 2)) || is_before_number(place, length + 1);
        case Kind::after_ordinal: return is_after_ordinal(place);
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

bool read_row(const Place& place, Found& found) {
    const Row* row = place.find_row(TITLES, 0, [&](const Row& r) { return fits(place, r); });
    if (row == nullptr) return false;
    const std::size_t length = row->written().size();
    if (row->kind == Kind::anywhere) {
        found.length = length;
        found.say_name(0, length, row->spoken());
    } else {
        take(place, length, row->spoken(), ends_sentence(row->kind), found);
    }
    return true;
}

}  // namespace

void take_genitive(const Place& place, Found& found) {
    const std::size_t mark = place.apostrophe(found.length);
    const std::size_t end = found.length + mark + 1;
    if (mark > 0 && place.peek(end - 1) == 's' && !place.is_joined(end)) {
        found.words += 's';
        found.length = end;
    }
}

void read_title(const Place& place, Found& found) {
    if (read_drive(place, found) || read_sister(place, found) || read_compass_point(place, found) ||
        read_word_of_life(place, found) || read_days_of_week(place, found) ||
        read_row(place, found))
        return;
    if (!read_saint_or_street(place, found)) read_initials(place, found);
}

void read_bare_title(const Place& place, Found& found) {
    if (!BARE_BEGINS[slot_of_begin(place.letters())]) return;
    if (read_drive(place, found) || read_days_of_week(place, found)) return;
    if (!read_bare_saint(place, found)) read_row(place, found);
}

}  // namespace kavi::everyday

// Titles and abbreviations, with or without their full stop.

#include "rules.h"

namespace kavi::everyday {

namespace {

// Takes the full stop after `length` characters too, unless it may end the sentence.
void take(const Place& place, std::size_t length, const char* spoken, bool may_end, Found& found) {
    const bool keeps_stop = may_end && place.may_end_sentence(length + 1);
    found.length = length + (place.peek(length) == '.' && !keeps_stop ? 1 : 0);
    found.say_name(0, length, spoken);
    const std::size_t mark = place.apostrophe(found.length);  // "Corp.'s"
    const std::size_t end = found.length + mark + 1;
    if (mark > 0 && place.peek(end - 1) == 's' && !place.is_joined(end)) {
        found.words += 's';
        found.length = end;
    }
}

// A number, or a Roman numeral that is not "I".
bool is_before_number(const Place& place, std::size_t ahead) {
    const std::size_t at = ahead + place.blanks(ahead);
    if (is_digit(place.peek(at))) return true;
    const std::string_view numeral = place.letters(at);
    return numeral != "I" && value_of_roman(numeral) > 0;
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

bool ends_sentence(Kind kind) {
    return kind == Kind::may_end || kind == Kind::before_date || kind == Kind::after_ordinal;
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
    const bool is_initial = length == 2 && is_upper(place.peek()) && place.peek(2) == ' ' &&
                            (is_upper(place.peek(3)) || place.peek(3) == '(') &&
                            place.peek() != 'I';
    if ((length < 4 && !is_initial) || is_letter(place.peek(length))) return;
    // The last full stop is the sentence's too where that may end; after an initial it does not.
    const bool ends =
        !is_initial && place.may_end_sentence(length) && !is_upper(place.peek(length + 1));
    found.length = length - (ends ? 1 : 0);
    found.words = words;
}

// "St. John" is a saint, "Main St." a street.
bool read_saint_or_street(const Place& place, Found& found) {
    if (place.letters() != "St" || place.peek(2) != '.') return false;
    const bool is_saint = place.peek(3) == ' ' && is_upper(place.peek(4)) &&
                          (place.word_before().empty() || !is_upper(place.word_before()[0]) ||
                           place.word_before().size() < 4);
    if (is_saint) {
        take(place, 2, "saint", false, found);
    } else {
        take(place, 2, "street", true, found);
    }
    return true;
}

// "King Dr. across": after a name and before no other, a street.
bool read_drive(const Place& place, Found& found) {
    if (place.letters() != "Dr" || place.peek(2) != '.' || place.before() != ' ') return false;
    const std::string_view name = place.word_before();
    const bool is_street = name.size() > 3 && is_upper(name[0]) && is_lower(name[1]) &&
                           (is_lower(place.peek(4)) || place.may_end_sentence(3)) &&
                           !is_upper(place.peek(4));
    if (!is_street) return false;
    take(place, 2, "drive", true, found);
    return true;
}

// "2nd ed."
bool is_after_ordinal(const Place& place) {
    if (place.before() != ' ') return false;
    const std::string_view suffix = place.word_before();
    return is_digit(place.before(2 + suffix.size())) && find(ORDINAL_SUFFIXES, suffix) != nullptr;
}

bool fits(const Place& place, const Row& row) {
    const std::size_t length = row.written.size();
    const char after = place.peek(length);
    const bool is_of_path =
        after == '.' && is_lower(row.written[0]) &&
        (place.before() == '.' || place.before() == '/' || is_lower(place.peek(length + 1)));
    if (is_of_path) return false;  // "misc.c"
    if (row.kind == Kind::anywhere) return !place.is_joined(length);
    const bool is_day = row.kind == Kind::before_date;
    if (is_day && (place.word_before() == "the" || place.word_before() == "The")) return false;
    if (is_day && after != '.') return is_date_part(place, length);
    if (after != '.') return row.kind == Kind::never && (after == ' ' || after == ',');
    switch (row.kind) {
        case Kind::before_number: return is_before_number(place, length + 1);
        case Kind::before_name:
            return place.peek(length + 1) == ' ' && is_upper(place.peek(length + 2));
        case Kind::after_ordinal: return is_after_ordinal(place);
        default: return true;
    }
}

bool read_row(const Place& place, Found& found) {
    const Row* row = place.find_row(TITLES, 0, [&](const Row& r) { return fits(place, r); });
    if (row == nullptr) return false;
    const std::size_t length = row->written.size();
    if (row->kind == Kind::anywhere) {
        found.length = length;
        found.say_name(0, length, row->spoken);
    } else {
        take(place, length, row->spoken, ends_sentence(row->kind), found);
    }
    return true;
}

}  // namespace

void read_title(const Place& place, Found& found) {
    if (read_drive(place, found) || read_row(place, found)) return;
    if (!read_saint_or_street(place, found)) read_initials(place, found);
}

void read_bare_title(const Place& place, Found& found) {
    read_row(place, found);
}

}  // namespace kavi::everyday

// Titles and abbreviations, with or without their full stop.

#include "rules.h"

namespace kavi::everyday {

namespace {

// Takes the full stop after `length` characters too, unless it may end the sentence.
void take(const Place& place, std::size_t length, const char* spoken, bool may_end, Found& found) {
    const bool keeps_stop = may_end && place.may_end_sentence(length + 1);
    found.length = length + (place.peek(length) == '.' && !keeps_stop ? 1 : 0);
    found.say_name(0, length, spoken);
}

bool is_before_number(const Place& place, std::size_t ahead) {
    const std::size_t blanks = place.blanks(ahead);
    return is_digit(place.peek(ahead + blanks));
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
                            is_upper(place.peek(3)) && place.peek() != 'I';
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

bool fits(const Place& place, const Row& row) {
    const std::size_t length = row.written.size();
    const char after = place.peek(length);
    if (row.written == "Sun" && place.word_before() == "the") return false;  // no day
    if (after == '.') return row.kind != Kind::before_number || is_before_number(place, length + 1);
    return row.kind == Kind::never && (after == ' ' || after == ',');
}

}  // namespace

void read_title(const Place& place, Found& found) {
    const std::string_view word = place.letters();
    const char after = place.peek(word.size());
    if (word.empty() || (after != '.' && after != ' ' && after != ',')) return;
    if (const Row* row = place.find_row(TITLES, 0, [&](const Row& r) { return fits(place, r); })) {
        return take(place, row->written.size(), row->spoken, row->kind == Kind::may_end, found);
    }
    if (!read_saint_or_street(place, found)) read_initials(place, found);
}

}  // namespace kavi::everyday

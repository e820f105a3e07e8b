// Titles and abbreviations, with or without their full stop.

#include "rules.h"

namespace kavi::everyday {

namespace {

enum class Stop {
    never,          // its full stop ends no sentence
    may_end,        // it does where nothing or a capital letter follows
    needed,         // the abbreviation is none without it
    before_number,  // and stands before a number
};

struct TitleRow {
    std::string_view written;  // before the full stop
    const char* spoken;
    Stop stop;
};

// clang-format off
constexpr TitleRow TITLES[] = {
    {"Mr",     "mister",         Stop::never},
    {"Mrs",    "missus",         Stop::never},
    {"Ms",     "miz",            Stop::never},
    {"Dr",     "doctor",         Stop::never},
    {"Prof",   "professor",      Stop::needed},
    {"Rev",    "reverend",       Stop::needed},
    {"Hon",    "honorable",      Stop::needed},
    {"Gov",    "governor",       Stop::needed},
    {"Sen",    "senator",        Stop::needed},
    {"Rep",    "representative", Stop::needed},
    {"Pres",   "president",      Stop::needed},
    {"Gen",    "general",        Stop::needed},
    {"Col",    "colonel",        Stop::needed},
    {"Maj",    "major",          Stop::needed},
    {"Capt",   "captain",        Stop::needed},
    {"Lt",     "lieutenant",     Stop::needed},
    {"Sgt",    "sergeant",       Stop::needed},
    {"Mt",     "mount",          Stop::needed},
    {"Jr",     "junior",         Stop::may_end},
    {"Sr",     "senior",         Stop::may_end},
    {"Ave",    "avenue",         Stop::may_end},
    {"Blvd",   "boulevard",      Stop::may_end},
    {"Rd",     "road",           Stop::may_end},
    {"Ln",     "lane",           Stop::may_end},
    {"Apt",    "apartment",      Stop::before_number},
    {"Inc",    "incorporated",   Stop::may_end},
    {"Ltd",    "limited",        Stop::may_end},
    {"Corp",   "corporation",    Stop::may_end},
    {"Co",     "company",        Stop::may_end},
    {"Bros",   "brothers",       Stop::may_end},
    {"etc",    "et cetera",      Stop::may_end},
    {"vs",     "versus",         Stop::never},
    {"approx", "approximately",  Stop::needed},
    {"dept",   "department",     Stop::may_end},
    {"Dept",   "department",     Stop::needed},
    {"est",    "estimated",      Stop::before_number},
    {"Est",    "established",    Stop::before_number},
    {"max",    "maximum",        Stop::before_number},
    {"min",    "minimum",        Stop::before_number},
    {"No",     "number",         Stop::before_number},
    {"no",     "number",         Stop::before_number},
    {"Nos",    "numbers",        Stop::before_number},
    {"Vol",    "volume",         Stop::before_number},
    {"vol",    "volume",         Stop::before_number},
    {"Fig",    "figure",         Stop::before_number},
    {"fig",    "figure",         Stop::before_number},
    {"Ch",     "chapter",        Stop::before_number},
    {"ch",     "chapter",        Stop::before_number},
    {"p",      "page",           Stop::before_number},
    {"pp",     "pages",          Stop::before_number},
    {"ca",     "circa",          Stop::before_number},
    {"c",      "circa",          Stop::before_number},
    {"Mon",    "Monday",         Stop::may_end},
    {"Tue",    "Tuesday",        Stop::may_end},
    {"Tues",   "Tuesday",        Stop::may_end},
    {"Wed",    "Wednesday",      Stop::may_end},
    {"Thu",    "Thursday",       Stop::may_end},
    {"Thurs",  "Thursday",       Stop::may_end},
    {"Fri",    "Friday",         Stop::may_end},
    {"Sat",    "Saturday",       Stop::needed},
    {"Sun",    "Sunday",         Stop::needed},
    // After a whole number they are units.
    {"tbsp",   "tablespoon",     Stop::never},
    {"tsp",    "teaspoon",       Stop::never},
};

// Letters with full stops that are not read letter by letter.
constexpr TitleRow LETTERS_WITH_STOPS[] = {
    {"e.g",  "for example",     Stop::never},
    {"i.e",  "that is",         Stop::never},
    {"Ph.D", "P H D",           Stop::may_end},
    {"M.Sc", "M S C",           Stop::may_end},
    {"et al", "et al",          Stop::may_end},
};
// clang-format on

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
bool read_initials(const Place& place, Found& found) {
    std::size_t length = 0;
    std::string words;
    constexpr std::size_t LONGEST = 32;  // so that a chain of them is not read from each
    while (length < LONGEST && is_letter(place.peek(length)) && place.peek(length + 1) == '.') {
        say(place.part(length, 1), words);
        length += 2;
    }
    const bool is_initial = length == 2 && is_upper(place.peek()) && place.peek(2) == ' ' &&
                            is_upper(place.peek(3)) && place.peek() != 'I';
    if (length < 4 && !is_initial) return false;
    if (is_letter(place.peek(length))) return false;
    // The last full stop is the sentence's too where that may end; after an initial it does not.
    const bool ends =
        !is_initial && place.may_end_sentence(length) && !is_upper(place.peek(length + 1));
    found.length = length - (ends ? 1 : 0);
    found.words = words;
    return true;
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

}  // namespace

void read_title(const Place& place, Found& found) {
    const std::string_view word = place.letters();
    const char after = place.peek(word.size());
    constexpr std::size_t LONGEST = 6;
    if (word.empty() || word.size() > LONGEST) return;
    if (after != '.' && after != ' ' && after != ',') return;
    for (const TitleRow& row : LETTERS_WITH_STOPS) {
        const bool matches =
            place.starts_with(row.written) && place.peek(row.written.size()) == '.';
        if (matches)
            return take(place, row.written.size(), row.spoken, row.stop == Stop::may_end, found);
    }
    if (read_saint_or_street(place, found) || read_initials(place, found)) return;
    for (const TitleRow& row : TITLES) {
        if (row.written[0] != word[0] || row.written != word) continue;
        if (row.stop == Stop::before_number &&
            (after != '.' || !is_before_number(place, word.size() + 1)))
            continue;
        if (after != '.' && row.stop != Stop::never) continue;
        if (word == "Sun" && place.word_before() == "the") continue;  // no day
        return take(place, word.size(), row.spoken, row.stop == Stop::may_end, found);
    }
}

}  // namespace kavi::everyday

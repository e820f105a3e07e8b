// Capitals that are said letter by letter though they look like a word: "the US team".

#include "rules.h"

namespace kavi::everyday {

namespace {

bool is_capitals(std::string_view word) {
    return word.size() > 1 && std::all_of(word.begin(), word.end(), is_upper);
}

// Where other words are in capitals too, they tell nothing.
bool is_among_capitals(const Place& place, std::size_t ahead) {
    return is_capitals(place.word_before()) || is_capitals(place.letters(ahead + 1));
}

}  // namespace

void read_capitals(const Place& place, Found& found) {
    const std::string_view letters = place.letters();
    if (read_month_name(place, letters, found)) return;
    if (letters.size() < 3 && read_bare_compass_point(place, found)) return;
    const Row* row = find(CAPITALS, letters);
    const std::size_t end = letters.size();
    if (row == nullptr || place.is_joined(end) || place.is_joined_before()) return;
    const bool is_shouted = row->written() == "US" && place.peek(end) == '!';  // "not them, US!"
    if (place.peek(end) == '$' || is_shouted || is_among_capitals(place, end)) return;
    const std::string_view before = place.word_before();
    const bool has_an = before == "an" || before == "An";
    const bool has_article = has_an || before == "the" || before == "The";
    if (row->kind == Kind::after && !has_article) return;
    if (row->kind == Kind::after_an && !has_an) return;
    found.say_name(0, end, row->spoken());
    found.length = end;
    take_genitive(place, found);
}

}  // namespace kavi::everyday

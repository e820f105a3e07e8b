// Capitals that are said letter by letter though they look like a word: "the US team".

#include "rules.h"

namespace kavi::everyday {

namespace {

bool is_capitals(std::string_view word) {
    return word.size() > 1 && std::all_of(word.begin(), word.end(), is_upper);
}

// Where other words are in capitals too, they tell nothing.
bool is_among_capitals(const Cursor& cursor, std::size_t ahead) {
    return is_capitals(cursor.word_before()) || is_capitals(cursor.letters(ahead + 1));
}

}  // namespace

void read_capitals(const Cursor& cursor, Found& found) {
    const std::string_view letters = cursor.letters();
    if (read_month_name(cursor, letters, found)) return;
    if (letters.size() < 3 && read_bare_compass_point(cursor, found)) return;
    const Row* row = find(CAPITALS, letters);
    const std::size_t end = letters.size();
    if (row == nullptr || cursor.is_joined(end) || cursor.is_joined_before()) return;
    const bool is_shouted = row->written() == "US" && cursor.peek(end) == '!';  // "not them, US!"
    if (cursor.peek(end) == '$' || is_shouted || is_among_capitals(cursor, end)) return;
    const std::string_view before = cursor.word_before();
    const bool has_an = before == "an" || before == "An";
    const bool has_article = has_an || before == "the" || before == "The";
    if (row->kind == Kind::after && !has_article) return;
    if (row->kind == Kind::after_an && !has_an) return;
    found.say_name(0, end, row->spoken());
    found.length = end;
    take_genitive(cursor, found);
}

}  // namespace kavi::everyday

#include "cursor.h"

#include "tokens.h"

namespace kavi::everyday {

const Row* find_lower(const Table& table, std::string_view word) {
    return find(table, in_lower_case(word));
}

std::size_t Cursor::letter(std::size_t ahead) const {
    if (is_letter(peek(ahead))) return 1;
    if (!is_outside_ascii(peek(ahead))) return 0;
    const CodePoint c = code_point_at(part(ahead, CODE_POINT_BYTES));
    return is_letter_of_any_script(c.value) ? c.length : 0;
}

std::size_t Cursor::word(std::size_t ahead) const {
    std::size_t length = 0;
    while (const std::size_t letter_length = letter(ahead + length)) length += letter_length;
    return length;
}

bool Cursor::is_joined_before(std::size_t back) const {
    const char last = before(back + 1);
    if (!is_outside_ascii(last)) return is_letter(last) || is_digit(last);
    const std::size_t shown = behind_.size() - back;
    for (std::size_t length = 2; length <= std::min(CODE_POINT_BYTES, shown); ++length) {
        const CodePoint c = code_point_at(behind_.substr(shown - length, length));
        if (c.length == length) return is_letter_of_any_script(c.value);
    }
    return false;
}

bool Cursor::begins_line(std::size_t back) const {
    const auto is_margin = [](char c) { return c == ' ' || c == '\t' || c == '>' || c == '|'; };
    while (is_margin(before(back + 1))) ++back;
    const char last = before(back + 1);
    return last == '\n' || (last == '\0' && !(is_cut_behind_ && back >= behind_.size()));
}

std::string_view Cursor::letters_before(std::size_t back) const {
    if (back > behind_.size()) return {};
    std::size_t begin = back;
    while (is_letter(before(begin + 1))) ++begin;
    if (begin >= behind_.size() && is_cut_behind_) return {};
    return behind_.substr(behind_.size() - begin, begin - back);
}

std::string_view Cursor::word_before(std::size_t back) const {
    while (before(back + 1) == ' ') ++back;
    return letters_before(back);
}

bool Cursor::is_before_noun(std::size_t ahead) const {
    if (peek(ahead) != ' ' || !is_letter(peek(ahead + 1))) return false;
    const Row* determiner = find_lower(DETERMINERS, word_before());
    const bool is_name = is_upper(peek(ahead + 1));  // "a 512 GB SSD", but "the $5 Ann owed"
    if (determiner == nullptr || (is_name && determiner->kind == Kind::both)) return false;
    const std::string_view noun = letters(ahead + 1);
    // "the $5 owed", "his $5 leaving"
    const bool is_verb =
        determiner->kind == Kind::both && noun.size() > 3 &&
        (noun.substr(noun.size() - 2) == "ed" || noun.substr(noun.size() - 3) == "ing");
    return !is_verb && find(NO_NOUNS, noun) == nullptr;
}

bool Cursor::may_end_sentence(std::size_t ahead) const {
    const std::size_t length = blanks(ahead);
    const char next = peek(ahead + length);
    return next == '\0' || next == '\n' || (length > 0 && is_upper(next));
}

}  // namespace kavi::everyday

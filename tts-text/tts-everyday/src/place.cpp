#include "place.h"

#include "tokens.h"

namespace kavi::everyday {

std::size_t Place::letter(std::size_t ahead) const {
    if (is_letter(peek(ahead))) return 1;
    if (!is_outside_ascii(peek(ahead))) return 0;
    const CodePoint c = code_point_at(part(ahead, CODE_POINT_BYTES));
    return is_letter_of_any_script(c.value) ? c.length : 0;
}

std::size_t Place::word(std::size_t ahead) const {
    std::size_t length = 0;
    while (const std::size_t letter_length = letter(ahead + length)) length += letter_length;
    return length;
}

std::string_view Place::letters_before(std::size_t back) const {
    std::size_t begin = back;
    while (is_letter(before(begin + 1))) ++begin;
    if (begin >= behind_.size() && is_cut_behind_) return {};
    return behind_.substr(behind_.size() - begin, begin - back);
}

std::string_view Place::word_before(std::size_t back) const {
    while (before(back + 1) == ' ') ++back;
    return letters_before(back);
}

bool Place::is_before_noun(std::size_t ahead) const {
    const std::string_view article = word_before();
    const bool has_article = article == "a" || article == "A" || article == "an" || article == "An";
    if (!has_article || peek(ahead) != ' ' || !is_lower(peek(ahead + 1))) return false;
    return find(NO_NOUNS, letters(ahead + 1)) == nullptr;
}

bool Place::may_end_sentence(std::size_t ahead) const {
    const std::size_t length = blanks(ahead);
    const char next = peek(ahead + length);
    return next == '\0' || next == '\n' || (length > 0 && is_upper(next));
}

}  // namespace kavi::everyday

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
    const bool is_a = article == "a" || article == "A" || article == "an" || article == "An";
    const bool is_the = article == "the" || article == "The" || article == "this" ||
                        article == "This" || article == "each" || article == "every";
    if ((!is_a && !is_the) || peek(ahead) != ' ' || !is_lower(peek(ahead + 1))) return false;
    const std::string_view noun = letters(ahead + 1);
    // "the $5 owed"
    const bool is_verb = is_the && noun.size() > 3 && noun.substr(noun.size() - 2) == "ed";
    return !is_verb && find(NO_NOUNS, noun) == nullptr;
}

bool Place::may_end_sentence(std::size_t ahead) const {
    const std::size_t length = blanks(ahead);
    const char next = peek(ahead + length);
    return next == '\0' || next == '\n' || (length > 0 && is_upper(next));
}

}  // namespace kavi::everyday

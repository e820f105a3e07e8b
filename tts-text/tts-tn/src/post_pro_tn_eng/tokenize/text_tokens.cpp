#include "text_tokens.h"

#include "../common/ascii.h"
#include "../readers/words.h"

namespace kavi::tn {

namespace {

// Whether a reader may look past a plain word that ends there: see readers/readers.h.
bool is_glued(const char* after) {
    return is_digit(*after) || is_letter(*after) || (*after == '.' && is_digit(after[1]));
}

}  // namespace

Token* TextTokens::fill(Token* end, Token* limit) {
    const bool reads_all = reach_ == Reach::text_end;
    const char* next = next_;
    while (end != limit && *next != '\0') {
        const char* begin = next;
        const unsigned run = run_of(*begin);
        const std::size_t length = first_section(begin, run, tag_ends_).size();
        *end++ = {begin, static_cast<std::uint16_t>(length),
                  static_cast<signed char>(class_of(run)), run == DIGITS, nullptr};
        next += length;
        if (!reads_all && stops_at(begin, run, next)) break;
    }
    next_ = next;
    return end;
}

// Whether no reader looks past a section that `next` follows. A blank before the word where
// readers stop is as good as the word.
bool TextTokens::stops_at(const char* section, unsigned run, const char* next) {
    if (run == LETTERS) {
        const std::string_view word(section, static_cast<std::size_t>(next - section));
        return !is_glued(next) && word_kind(word) == WordKind::plain;
    }
    return *section == ' ' && begins_plain_word(next);
}

bool TextTokens::is_amount_before_dollar(const Token* number) {
    const char* text = number->begin;
    if (amount_end_ == nullptr || text >= amount_end_) {
        while (is_digit(*text) || *text == ',' || *text == '.') ++text;
        amount_end_ = text;
    }
    return *amount_end_ == '$';
}

bool TextTokens::greater_follows(const char* text) {
    if (searched_ == nullptr || searched_ < text) searched_ = text;
    if (tags_ahead_.tag_at(searched_).empty()) return false;
    while (*searched_ != '\0' && *searched_ != '>') {
        searched_ += first_section(searched_, tags_ahead_).size();
    }
    return *searched_ == '>';
}

}  // namespace kavi::tn

#include "text_tokens.h"

#include "../common/ascii.h"
#include "../readers/words.h"

namespace kavi::tn {

namespace {

// Whether no reader looks past a section of letters: see readers/readers.h.
bool stops_readers(const char* word, const char* after) {
    const bool glued =
        is_digit(*after) || is_letter(*after) || (*after == '.' && is_digit(after[1]));
    return !glued && word_kind({word, static_cast<std::size_t>(after - word)}) == WordKind::plain;
}

}  // namespace

// A blank before a plain word is as good a place to stop as the word.
Token* TextTokens::fill(Token* end, Token* limit) {
    const bool reads_all = reach_ == Reach::text_end;
    const char* next = next_;
    while (end != limit && *next != '\0') {
        const char* begin = next;
        const unsigned run = run_of(*begin);
        if (run == 0 && *begin != '<') {  // a blank, or a mark
            *end++ = {begin, 1, MARKSYMBOL, false, nullptr};
            ++next;
            if (!reads_all && *begin == ' ' && begins_plain_word(next)) break;
            continue;
        }
        const std::size_t length = first_section(begin, run, tag_ends_).size();
        *end++ = {begin, static_cast<std::uint16_t>(length),
                  static_cast<signed char>(class_of(run)), run == DIGITS, nullptr};
        next += length;
        if (!reads_all && run == LETTERS && stops_readers(begin, next)) break;
    }
    next_ = next;
    return end;
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
    return !tags_ahead_.tag_at(searched_).empty() && find_greater();
}

bool TextTokens::find_greater() {
    while (*searched_ != '\0' && *searched_ != '>') {
        searched_ += first_section(searched_, tags_ahead_).size();
    }
    return *searched_ == '>';
}

}  // namespace kavi::tn

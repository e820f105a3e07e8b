#include "queue_tokens.h"

#include <cstring>

namespace kavi::tn {

namespace {

// Of a class that there is not, it is a mark.
Token token_of(Section* section) {
    const int kind = section->m_nmark;
    const bool is_class = kind == STRINGSYMBOL || kind == NUMBERSYMBOL;
    return {section->sz_char, static_cast<std::uint16_t>(std::strlen(section->sz_char)),
            static_cast<signed char>(is_class ? kind : MARKSYMBOL), is_digits(section->sz_char),
            section};
}

bool is_after_amount(const Section* section) {
    const char first = section->sz_char[0];
    return first != ',' && first != '.' && !is_digits(section->sz_char);
}

bool is_greater(const Section* section) {
    return section->sz_char[0] == '>';
}

}  // namespace

const Section* QueueSearch::find(const Section* from, std::size_t index) {
    if (index < known_to_) return found_;
    while (from != nullptr && !is_wanted_(from)) {
        from = from->m_pnext;
        ++index;
    }
    found_ = from;
    known_to_ = from != nullptr ? index + 1 : static_cast<std::size_t>(-1);
    return found_;
}

QueueTokens::QueueTokens(Section* head)
    : next_(head), amount_end_(is_after_amount), greater_(is_greater) {
    if (head != nullptr) {
        for (; n_before_ < SECTIONS_BEFORE && next_->m_pprevious != nullptr; ++n_before_) {
            next_ = next_->m_pprevious;
        }
    }
    begin_row();
}

Token* QueueTokens::fill(Token* end, Token* limit) {
    for (; end != limit && next_ != nullptr; next_ = next_->m_pnext) {
        *end++ = token_of(next_);
        ++n_;
    }
    return end;
}

bool QueueTokens::is_amount_before_dollar(const Token* number) {
    const Section* end = amount_end_.find(number->section, index_of(number));
    return end != nullptr && end->sz_char[0] == '$';
}

bool QueueTokens::greater_follows(const Token* token) {
    return greater_.find(token->section->m_pnext, index_of(token) + 1) != nullptr;
}

}  // namespace kavi::tn

// Filling and sliding the row; token_window.h explains it.

#include "token_window.h"

#include <algorithm>
#include <cstring>

#include "../common/ascii.h"
#include "../readers/words.h"
#include "section_cut.h"

namespace kavi::tn {

namespace {

Token token_of(Section* section) {
    const int kind = section->m_nmark;
    const bool is_class = kind == STRINGSYMBOL || kind == NUMBERSYMBOL || kind == MARKSYMBOL;
    return {section->sz_char, static_cast<std::uint16_t>(std::strlen(section->sz_char)),
            static_cast<signed char>(is_class ? kind : OTHER_CLASS), is_digits(section->sz_char),
            section};
}

bool is_after_amount(const Section* section) {
    const char first = section->sz_char[0];
    return first != ',' && first != '.' && !is_digits(section->sz_char);
}

bool is_greater(const Section* section) {
    return section->sz_char[0] == '>';
}

// Whether no reader looks past the letters from `word` to `after`, by the rule of plain words
// (readers/readers.h).
bool stops_readers(const char* word, const char* after) {
    const bool glued =
        is_digit(*after) || is_letter(*after) || (*after == '.' && is_digit(after[1]));
    return !glued && word_kind({word, static_cast<std::size_t>(after - word)}) == WordKind::plain;
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

// cppcheck-suppress uninitMemberVar ; begin(text) sets the row
TokenWindow::TokenWindow(Reach reach, TagEnds& tag_ends)
    : reach_(reach), tag_ends_(&tag_ends), after_amount_(is_after_amount), greater_(is_greater) {}

// cppcheck-suppress uninitMemberVar ; tokens up to end_ are set
TokenWindow::TokenWindow(Section* head)
    : section_(head), after_amount_(is_after_amount), greater_(is_greater) {
    if (head != nullptr) {
        for (; n_before_ < SECTIONS_BEFORE && section_->m_pprevious != nullptr; ++n_before_) {
            section_ = section_->m_pprevious;
        }
    }
    begin_row();
}

const Token* TokenWindow::begin(const char* text) {
    text_ = text;
    return begin_row();
}

// ---- the row ----

// Begins a row at the cursor.
const Token* TokenWindow::begin_row() {
    tokens_[0] = NO_TOKEN;
    tokens_[1] = NO_TOKEN;  // not by assignment from the first: its load would wait for the stores
    extend_from(tokens_ + SECTIONS_BEFORE);
    return tokens_ + SECTIONS_BEFORE;
}

const Token* TokenWindow::slide_to(const Token* token) {
    extend_from(std::copy(token - SECTIONS_BEFORE, static_cast<const Token*>(end_), tokens_));
    return tokens_ + SECTIONS_BEFORE;
}

void TokenWindow::extend_from(Token* end) {
    Token* const limit = tokens_ + CAPACITY;
    end_ = text_ != nullptr ? cut_text(end, limit) : look_at_queue(end, limit);
    slide_at_ = end_ != limit ? limit + 1 : end_ - SECTIONS_AHEAD;
    *end_ = NO_TOKEN;
}

Token* TokenWindow::cut_text(Token* end, Token* limit) {
    const bool reads_all = reach_ == Reach::text_end;
    const char* next = text_;
    while (end != limit && *next != '\0') {
        const char* begin = next;
        const unsigned run = run_of(*begin);
        if (run == 0 && *begin != '<') {  // a blank, or a mark
            *end++ = {begin, 1, MARKSYMBOL, false, nullptr};
            ++next;
            if (!reads_all && *begin == ' ' && begins_plain_word(next)) break;
            continue;
        }
        const std::size_t length = first_section(begin, run, *tag_ends_).size();
        *end++ = {begin, static_cast<std::uint16_t>(length),
                  static_cast<signed char>(class_of(run)), run == DIGITS, nullptr};
        next += length;
        if (!reads_all && run == LETTERS && stops_readers(begin, next)) break;
    }
    text_ = next;
    return end;
}

Token* TokenWindow::look_at_queue(Token* end, Token* limit) {
    for (; end != limit && section_ != nullptr; section_ = section_->m_pnext) {
        *end++ = token_of(section_);
        ++n_sections_;
    }
    return end;
}

// ---- searches past the row: each reads every part of the text or queue once ----

bool TokenWindow::is_amount_before_dollar(const Token* number) {
    if (number->section != nullptr) {
        const Section* after = after_amount_.find(number->section, index_of(number));
        return after != nullptr && after->sz_char[0] == '$';
    }
    const char* text = number->begin + number->length;
    if (amount_end_ == nullptr || text >= amount_end_) {
        while (is_digit(*text) || *text == ',' || *text == '.') ++text;
        amount_end_ = text;
    }
    return *amount_end_ == '$';
}

bool TokenWindow::greater_follows(const Token* token) {
    if (token->section != nullptr) {
        return greater_.find(token->section->m_pnext, index_of(token) + 1) != nullptr;
    }
    const char* const text = token->begin + token->length;
    if (searched_ == nullptr || searched_ < text) searched_ = text;
    if (tags_ahead_.tag_at(searched_).empty()) return false;
    while (*searched_ != '\0' && *searched_ != '>') {
        searched_ += first_section(searched_, tags_ahead_).size();
    }
    return *searched_ == '>';
}

}  // namespace kavi::tn

#include "section_window.h"

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

Section* SectionWindow::begin(const char* text) {
    end_ = text;
    complete_ = false;
    n_ = 0;
    tail_ = nullptr;
    fill(1 + SECTIONS_AHEAD);
    return n_ > 0 ? ring_ : nullptr;
}

// Which of all sections appended a section of the ring is, from 0.
std::size_t SectionWindow::index_of(const Section* section) const {
    const auto slot = static_cast<std::size_t>(static_cast<const PlacedSection*>(section) - ring_);
    const std::size_t tail = n_ - 1;
    return tail - (tail + CAPACITY - slot) % CAPACITY;
}

void SectionWindow::fill(std::size_t n_wanted) {
    while (n_ < n_wanted && !complete_) append();
}

void SectionWindow::append() {
    if (*end_ == '\0') {
        complete_ = true;
        return;
    }
    const std::string_view text = first_section(end_, tag_ends_);
    PlacedSection& section = ring_[n_ % CAPACITY];
    if (n_ >= CAPACITY) section.m_pnext->m_pprevious = nullptr;  // the oldest goes
    ++n_;
    end_ += text.size();
    set_section(section, text);
    section.begin = text.data();
    section.length = text.size();
    link_section(section, tail_);
    if (reach_ == Reach::plain_word) complete_ = stops_at(section);
}

// A blank before the word where readers stop is as good as the word.
bool SectionWindow::stops_at(const PlacedSection& section) const {
    if (section.m_nmark == STRINGSYMBOL) return stops_readers(section.begin, end_);
    if (section.begin[0] != ' ' || !begins_plain_word(end_)) return false;
    const char* word_end = end_ + 1;
    while (belongs_to(LETTERS, *word_end)) ++word_end;
    return static_cast<std::size_t>(word_end - end_) <= WORD_LENGTH_MAX &&
           stops_readers(end_, word_end);
}

bool SectionWindow::is_amount_before_dollar(const Section* number) {
    const char* text = source(number).data();
    if (amount_end_ == nullptr || text >= amount_end_) {
        while (is_digit(*text) || *text == ',' || *text == '.') ++text;
        amount_end_ = text;
    }
    return *amount_end_ == '$';
}

bool SectionWindow::greater_follows(const char* text) {
    if (searched_ == nullptr || searched_ < text) searched_ = text;
    while (*searched_ != '\0' && *searched_ != '>') {
        searched_ += first_section(searched_, tags_ahead_).size();
    }
    return *searched_ == '>';
}

}  // namespace kavi::tn

// The sections of a sentence that the readers can see.
#ifndef KAVI_TN_SECTION_WINDOW_H
#define KAVI_TN_SECTION_WINDOW_H

#include <string_view>

#include "../common/ascii.h"
#include "../readers/readers.h"
#include "section_cut.h"

namespace kavi::tn {

// A short queue of sections that slides along a text, so that a sentence of any length needs no
// more memory than this. Searches that go further look at the text.
class SectionWindow {
  public:
    // Up to where the text is cut.
    enum class Reach {
        plain_word,  // the first plain word that no reader looks past, or the blank before it
        text_end,
    };

    // A NUL follows the text. `tag_ends` serves one pass over it.
    // cppcheck-suppress uninitMemberVar ; of the ring, those appended are set
    SectionWindow(Reach reach, TagEnds& tag_ends) : reach_(reach), tag_ends_(tag_ends) {}
    SectionWindow(const SectionWindow&) = delete;
    SectionWindow& operator=(const SectionWindow&) = delete;

    // The section at `text`, with those after it that a reader may look at; null at the end of the
    // text. Nothing stands before it.
    Section* begin(const char* text);

    // The section after `last`, likewise; null after the end. Those before it stay as far as
    // readers look back.
    Section* after(const Section* last) {
        if (!complete_) fill(index_of(last) + 2 + SECTIONS_AHEAD);
        return last->m_pnext;
    }

    // Where the text goes on after all sections.
    const char* end() const { return end_; }

    // The sentence's own bytes of a section of this window: a contraction is rewritten in the
    // section alone.
    static std::string_view source(const Section* section) {
        const auto* placed = static_cast<const PlacedSection*>(section);
        return {placed->begin, placed->length};
    }

    // Whether the apostrophe before a section of this window has rewritten it.
    static bool is_rewritten(const Section* section) {
        return is_letter(section->sz_char[0]) && source(section) != section->sz_char;
    }

    // Whether a "$" follows the amount that begins with this number.
    bool is_amount_before_dollar(const Section* number);

    // Whether a section that begins with ">" comes after this one.
    bool greater_follows(const Section* section) {
        return greater_follows(source(section).data() + source(section).size());
    }

    // The same from a place in the text where a section begins.
    bool greater_follows(const char* text);

  private:
    struct PlacedSection : Section {
        const char* begin;  // of its own bytes in the sentence
        std::size_t length;
    };

    static constexpr std::size_t CAPACITY = 16;  // a power of two: what divides by it is cheap
    static_assert(CAPACITY >= SECTIONS_BEFORE + 1 + SECTIONS_AHEAD);

    inline void append();
    inline bool stops_at(const PlacedSection& section) const;
    void fill(std::size_t n_wanted);
    std::size_t index_of(const Section* section) const;

    Reach reach_;
    TagEnds& tag_ends_;
    const char* end_ = nullptr;
    bool complete_ = false;         // nothing is to be appended any more
    std::size_t n_ = 0;             // of sections appended
    Section* tail_ = nullptr;       // the last of them
    PlacedSection ring_[CAPACITY];  // the last CAPACITY sections appended

    const char* amount_end_ = nullptr;  // where the amount of money last looked at ends
    const char* searched_ = nullptr;    // up to here, the text has been searched for ">"
    TagEnds tags_ahead_;                // of that search
};

}  // namespace kavi::tn

#endif  // KAVI_TN_SECTION_WINDOW_H

// Listing the items of speakable text: words, marks, break times, and the starts and ends of spans.
//
// Most of a text is words between blanks, and "<punc=" tags between words. These are found
// directly, eight characters at a time (common/runs.h). At any other "<" with the name of a tag the
// Scanner reads step by step: from the start of a word directly before the tag until the tag is
// behind and no word is open. In
//
//     we have <emphasis=a>two</emphasis> cats <punc=dou>
//
// the Scanner reads "<emphasis=a>" only. The results are those of the Scanner alone: for it, too, a
// word ends at a blank, after 499 characters or at a tag, and a "<" without the name of a tag is a
// character of a word.
//
// One list serves for counting the words, for storing them and for the offsets that the host layer
// reports, so a text is searched once: 43 instructions for a word of news (docs/performance.md).
#ifndef KAVI_TN_TEXT_EVENTS_H
#define KAVI_TN_TEXT_EVENTS_H

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "MemoryStack.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

enum class TextEventKind : std::uint8_t { word, punc, breaktime, span_begin, span_end };

// An item and its piece of the text: a word; the name of a mark; the value of a break time; for
// span_begin, the name, "=" and value of its tag; for span_end, nothing. A piece is cut at 65,535
// bytes, which is more than any use of it reads.
struct TextEvent {
    const char* begin;
    std::uint16_t length;
    TextEventKind kind;

    std::string_view text() const { return {begin, length}; }
};

// A list of items. It holds those of any sentence of 4,095 bytes, since each has at least two
// bytes; a text with more items comes in several lists.
class TextEvents {
  public:
    static constexpr std::size_t WORDS_MAX = SZ_TEXT_MAX_LEN / 2 + 1;

    // Must be cleared before any use.
    // cppcheck-suppress uninitMemberVar ; clear sets what is read
    TextEvents() {}

    void clear() {
        end_ = events_;
        full_at_ = events_ + WORDS_MAX - 1;
        n_others_ = 0;
        characters_end_ = characters_;
    }
    bool is_full() const { return end_ >= full_at_; }

    // The list is not full. Two items may be added then: a tag may have two.
    void add(TextEventKind kind, std::string_view text) {
        const std::size_t length = std::min<std::size_t>(text.size(), UINT16_MAX);
        *end_++ = {text.data(), static_cast<std::uint16_t>(length), kind};
        if (kind != TextEventKind::word) ++n_others_;
    }

    // Adds a word that tags interrupt in the text: its characters are copied into the list.
    void add_put_together(std::string_view word);

    int n_words() const { return static_cast<int>(end_ - events_) - n_others_; }
    const TextEvent* begin() const { return events_; }
    const TextEvent* end() const { return end_; }

  private:
    static constexpr std::size_t CHARACTERS = 2048;

    TextEvent* end_;
    TextEvent* full_at_;
    int n_others_;  // items that are not words
    char* characters_end_;
    TextEvent events_[WORDS_MAX];
    char characters_[CHARACTERS];  // of words that tags interrupt
};

// Receives each list, which is valid during the call. False ends the reading.
using EventsHandler = bool(void* context, const TextEvents& events);

// Lists the items of a text that a NUL follows and passes each list to `on_list`. `events` is the
// list and keeps the last one. False when the handler ended the reading. The arena may be null.
bool read_text(std::string_view text, mem_stack_handle arena, TextEvents& events,
               EventsHandler* on_list, void* context);

}  // namespace kavi::tn

#endif  // KAVI_TN_TEXT_EVENTS_H

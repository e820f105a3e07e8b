// Tagged text as a list of its items: words, marks, break times and spans.
#ifndef KAVI_TN_TEXT_READER_H
#define KAVI_TN_TEXT_READER_H

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "MemoryStack.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

enum class TextEventKind : std::uint8_t { word, punc, breaktime, span_begin, span_end };

// A piece of the text and what it is: a word; the name of a mark; a break time's value; the inside
// of the tag that opens a span, name, "=" and value. A longer piece than any that counts is cut.
struct TextEvent {
    const char* begin;
    std::uint16_t length;
    TextEventKind kind;

    std::string_view text() const { return {begin, length}; }
};

// So many events that one list holds what a sentence has, of two bytes each; a longer text comes in
// several.
class TextEvents {
  public:
    static constexpr std::size_t WORDS_MAX = SZ_TEXT_MAX_LEN / 2 + 1;

    // Holds nothing of use until it has been cleared.
    // cppcheck-suppress uninitMemberVar ; clear sets all that counts
    TextEvents() {}

    void clear() {
        end_ = events_;
        full_at_ = events_ + WORDS_MAX - 1;
        n_others_ = 0;
        characters_end_ = characters_;
    }
    bool is_full() const { return end_ >= full_at_; }

    // The list has room while it is not full; reading a tag may add two.
    void add(TextEventKind kind, std::string_view text) {
        const std::size_t length = std::min<std::size_t>(text.size(), UINT16_MAX);
        *end_++ = {text.data(), static_cast<std::uint16_t>(length), kind};
        if (kind != TextEventKind::word) ++n_others_;
    }

    // Adds a word that is in pieces: its characters are kept here.
    void add_put_together(std::string_view word);

    int n_words() const { return static_cast<int>(end_ - events_) - n_others_; }
    const TextEvent* begin() const { return events_; }
    const TextEvent* end() const { return end_; }

  private:
    static constexpr std::size_t CHARACTERS = 2048;

    TextEvent* end_;
    TextEvent* full_at_;
    int n_others_;  // than words
    char* characters_end_;
    TextEvent events_[WORDS_MAX];
    char characters_[CHARACTERS];  // of words put together
};

// Is handed each list; false when no more are wanted.
using EventsHandler = bool(void* context, const TextEvents& events);

// Lists the items of a text, which a NUL follows: in one list, which is left in `events`, or,
// where that has no room for all, in several. False when the handler did not want all. The arena
// may be null.
bool read_text(std::string_view text, mem_stack_handle arena, TextEvents& events,
               EventsHandler* on_list, void* context);

}  // namespace kavi::tn

#endif  // KAVI_TN_TEXT_READER_H

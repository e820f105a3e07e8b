// Tagged text as a list of what stands in it: words, marks, break times and spans.
#ifndef KAVI_TN_TEXT_READER_H
#define KAVI_TN_TEXT_READER_H

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>

#include "scanner.h"

namespace kavi::tn {

enum class TextEventKind : std::uint8_t { word, punc, breaktime, span_begin, span_end };

// A piece of the text and what it is: a word; the name of a mark; a break time's value; the inside
// of the tag that opens a span, name, "=" and value. A longer piece than any that counts is cut.
// The character after it may be read.
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

    // Adds a word that stands in pieces: its characters are kept here.
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
    char characters_[CHARACTERS + 1];  // of words put together, and one that may be read
};

// Reads one text.
class TextReader {
  public:
    // A NUL follows the text. The arena may be null.
    // cppcheck-suppress uninitMemberVar ; of the spans, those entered are set
    TextReader(std::string_view text, mem_stack_handle arena)
        : at_(text.data()), arena_(arena), end_(at_ + text.size()) {
        word_[0] = '\0';
    }
    TextReader(const TextReader&) = delete;
    TextReader& operator=(const TextReader&) = delete;

    // Lists what comes next: all of it, or as much as the list holds.
    void read(TextEvents& events);

    bool at_end() const { return at_ == end_ && n_spans_ == 0; }

  private:
    inline void read_usual(TextEvents& events);
    inline void read_step(TextEvents& events);
    inline void read_tag(const Tag& tag, TextEvents& events);
    inline void leave_span(TextEvents& events);

    struct Span {
        const char* after;  // where the text goes on
        const char* outer_end;
    };

    // Spans nested deeper are not read: their words are never stored, since a chain of so many
    // names is longer than any that can be.
    static constexpr int SPANS_NESTED_MAX = 64;

    // Not side by side: loaded as one, place and end would wait for the store of the place.
    const char* at_;
    mem_stack_handle arena_;
    const char* end_;                   // of the innermost open span, or of the text
    char word_[WORD_MAX_LEN];           // that the scanner is reading, or an empty one
    std::optional<Scanner> scanner_;    // from the first step on
    const char* usual_from_ = nullptr;  // up to there, the text is read step by step
    int n_spans_ = 0;
    Span spans_[SPANS_NESTED_MAX];  // the open ones
};

}  // namespace kavi::tn

#endif  // KAVI_TN_TEXT_READER_H

// The stretch of a long text that the engine is given next.
#ifndef KAVI_HOST_TEXT_WINDOW_H
#define KAVI_HOST_TEXT_WINDOW_H

#include <string_view>
#include <vector>

#include "post_pro_tn_eng.h"
#include "tts_host.h"

namespace kavi::host {

// The length of the markup tag that the engine takes whole at the start of `text`; 0 when it reads
// text there.
std::size_t tag_length(std::string_view text);

// Feeds a text of any length through a buffer of the engine's size: the opening tags of the spans
// that are open, then text that has not been read yet. Checks the markup on the way in, leaves out
// what the engine would stop at, and knows for every byte in the buffer where it came from.
class TextWindow {
  public:
    explicit TextWindow(std::vector<Diagnostic>& diagnostics) : diagnostics_(diagnostics) {}

    void begin(std::string_view text);

    // Tops the buffer up. False when there is no text left to read.
    bool fill();

    char* text() { return window_; }
    std::size_t length() const { return length_; }

    // Where to cut the buffer so that at most about `size` bytes of new text stand before the cut:
    // behind a blank if there is one, never inside a tag or a word that fits a section. Always some
    // text, and no more than there is.
    std::size_t cut_position(std::size_t size) const;

    // Moves on behind the first sentence of the buffer up to `cut`. `handed_back` is the length of
    // what the engine gave back of it.
    void consume(std::size_t cut, std::size_t handed_back);

    // Where in the text the first byte stands that has not been consumed.
    std::size_t source_offset() const { return consumed_ + left_out_; }

  private:
    struct Span {
        std::string_view tag;  // the opening tag, in the text
        const void* kind;      // its row in the engine's table of tags
        bool left_out;
    };
    // An opening or closing tag in the buffer that consume() has yet to come to.
    struct SpanEvent {
        std::size_t at;
        std::string_view opening;  // empty for a closing tag
    };
    struct Gap {
        std::size_t at;
        std::size_t length;
    };

    std::string_view rest() const { return text_.substr(next_); }
    std::size_t room() const { return CAPACITY - length_; }
    std::size_t find_from_here(char c, std::size_t& memo) const;

    bool feed();
    bool feed_run();
    bool feed_tag();
    bool feed_as_text(bool never_closed);
    bool feed_removed(std::string_view tag);
    bool feed_closing(std::string_view tag, const void* kind);
    bool feed_opening(std::string_view tag, const void* kind);
    int open_spans() const;
    bool markup_fits(std::string_view tag) const;
    bool copy(std::string_view piece);
    bool copy_event(std::string_view tag, std::string_view opening);
    bool ends_in_tag_beginning() const;
    bool leave_out(std::size_t length);
    void report(Finding finding);
    void rebuild_prefix(std::size_t open);

    static constexpr std::size_t CAPACITY = SZ_TEXT_MAX_LEN - 1;

    std::vector<Diagnostic>& diagnostics_;
    std::string_view text_;
    std::size_t next_ = 0;  // the next byte of the text to feed

    // Positions below count the bytes that were fed; what is left out counts for one.
    char window_[SZ_TEXT_MAX_LEN] = {};
    std::size_t length_ = 0;
    std::size_t prefix_ = 0;    // how much of it opens spans again
    std::size_t fed_ = 0;       // position behind the buffer
    std::size_t consumed_ = 0;  // position behind the last sentence
    std::size_t left_out_ = 0;  // bytes left out before that

    std::vector<Span> fed_spans_;          // open behind the buffer, outermost first
    std::vector<std::string_view> spans_;  // opening tags open at consumed_, outermost first
    std::vector<SpanEvent> events_;        // in the buffer behind consumed_
    std::vector<Gap> gaps_;                // likewise

    // Where the next of these stands, as far as it is known.
    std::size_t next_tag_ = 0;
    std::size_t next_tag_end_ = 0;
    std::size_t next_nul_ = 0;
};

}  // namespace kavi::host

#endif  // KAVI_HOST_TEXT_WINDOW_H

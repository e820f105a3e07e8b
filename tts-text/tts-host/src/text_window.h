// A window that slides over a long text: what the engine is given next.
#ifndef KAVI_HOST_TEXT_WINDOW_H
#define KAVI_HOST_TEXT_WINDOW_H

#include <algorithm>
#include <list>
#include <string_view>
#include <vector>

#include "for_host_layer.h"
#include "source_map.h"
#include "tts_findings.h"
#include "tts_rewriter.h"

namespace kavi::host {

// The spans that are open at the end of the window, including those whose tags are left out. At
// most SPANS_MAX are kept: of spans that are left out deeper than that, only the number is known,
// so the kind of their closing tags is not checked.
class FedSpans {
  public:
    void clear();

    // Whether the engine's record has room for one more, and the builder's chain for its value:
    // ten names are never too long. Tags inside the deepest are left out with it.
    bool has_room() const {
        return n_open_ < tn::OPEN_TAGS_MAX && deeper_ == 0 && spans_.size() < SPANS_MAX;
    }
    bool value_fits(std::string_view tag) const;

    // `offset` is the tag's in the text.
    void open(std::string_view tag, std::size_t offset, const tn::MarkupTag* row, bool left_out);

    // Whether the innermost span is of the kind that this row of the table opens, and its opening
    // tag was left out.
    bool is_innermost(const tn::MarkupTag* row) const;
    bool innermost_is_left_out() const { return deeper_ > 0 || spans_.back().left_out; }
    void close_innermost();

    // Adds Finding::span_never_closed for each span that is not left out, the outermost first.
    void report_open(std::list<Diagnostic>& findings) const;

    bool any() const { return !spans_.empty(); }
    bool any_fed() const { return n_open_ > 0; }

  private:
    struct Span {
        const tn::MarkupTag* row;
        std::size_t offset;
        std::size_t value_length;
        bool left_out;
    };

    static constexpr std::size_t SPANS_MAX = 64;

    std::vector<Span> spans_;  // outermost first
    std::size_t deeper_ = 0;   // left out, inside these
    int n_open_ = 0;           // not left out
    std::size_t values_ = 0;   // of these, the lengths of the values with a tab after each
};

// Feeds a text of any length through a buffer, which holds the opening tags of the spans that are
// open and then text that has not been read yet. Text is rewritten and its markup checked when it
// is fed: what the engine would stop at is left out. A map has the source of every byte in the
// buffer.
class TextWindow {
  public:
    // Begins a text, of which nothing is known yet; its first byte is at `offset`. `rewriter` may
    // be null.
    void begin(std::size_t offset, const TextRewriter* rewriter);

    // The text received so far, from `offset`: all not yet fed, and what rewriters may look back
    // at. More may be given later unless it `is_complete`.
    void give(std::string_view text, std::size_t offset, bool is_complete);

    // Refills the buffer when little is left in it, with the text whose reading cannot depend on
    // what follows. False when there is nothing left to read. `changed` is set to whether bytes
    // were added to the buffer or moved in it.
    bool fill(bool& changed);

    // Whether the buffer holds what it would hold if the whole text had been given at once.
    bool is_filled() const { return is_full_ || room() == 0 || holds_rest(); }

    // What is to be read next, with one byte after it that may be written, and its length.
    char* text() { return buffer_ + begin_; }
    const char* text() const { return buffer_ + begin_; }
    std::size_t length() const { return end_ - begin_; }

    // Whether the rest of the text is in the buffer.
    bool holds_rest() const { return is_complete_ && next_ == text_.size(); }

    // The offset in the text of the next byte to feed.
    std::size_t next_offset() const { return text_offset_ + next_; }

    // Where to cut so that at most about `size` bytes of new text are before the cut: after a
    // blank if there is one, never inside a tag or a word that fits a section, and inside the words
    // of a rewriting only where `inside_rewritings` allows it. Always some text, and no more than
    // there is.
    std::size_t cut_position(std::size_t size, bool inside_rewritings) const;

    // Moves on to `rest`, a place in the buffer where `open` are the tags that are open.
    void consume(const char* rest, const SsmlTagArr& open);

    // The offset in the text of a byte of the buffer at or after text().
    std::size_t source_offset(const char* at) const { return map_.offset_of(position(at)); }

    // The source of a piece of the buffer from `text()` on.
    TextRange source_of(std::string_view piece) const {
        return map_.source_of(position(piece.data()), position(piece.data() + piece.size()));
    }

    // Appends what the buffer has from `begin` to `end` to the map of a sentence.
    void append_sources(const char* begin, const char* end, SourceMap& sentence) const;

    // The findings in what has been fed, in order. The reader removes those it has reported.
    std::list<Diagnostic>& findings() { return findings_; }

    bool has_finding_at(std::size_t offset) const {
        return std::any_of(findings_.begin(), findings_.end(),
                           [=](const Diagnostic& found) { return found.offset == offset; });
    }

    // At the end of the text: adds the spans that nothing has closed.
    void report_open_spans() { spans_.report_open(findings_); }

  private:
    static constexpr std::size_t CAPACITY = std::size_t{4} * SZ_TEXT_MAX_LEN;

    std::string_view rest() const { return text_.substr(next_); }
    std::size_t room() const { return CAPACITY - end_; }

    // The position in the map of a byte of the buffer. The tags of open spans at the front have the
    // position of the text after them.
    std::size_t position(const char* at) const {
        return origin_ + std::max(static_cast<std::size_t>(at - buffer_), begin_ + prefix_);
    }

    void find_rewriting();

    // ---- each takes one piece of the text, or returns false when it needs more room or text ----
    bool feed();
    bool feed_rewriting();
    bool feed_run();
    std::size_t without_open_run(std::size_t end) const;
    void report_not_spoken(std::string_view run);
    bool feed_tag();
    bool feed_other_tag();
    bool feed_kept(std::string_view tag);
    bool feed_as_text(Finding finding, bool keep);
    bool feed_removed(std::string_view tag);
    bool feed_opening(std::string_view tag, const tn::MarkupTag* row);
    bool feed_closing(std::string_view tag, const tn::MarkupTag* opening);
    bool copy(std::string_view piece);
    bool copy_without_nuls(std::string_view piece);
    bool leave_out(std::size_t length);

    // The end of the buffer from its last "<" on, if that is so near that a tag may begin there
    // whose name has not ended; else empty.
    std::string_view tag_beginning() const;
    void report(Finding finding) { findings_.push_back({next_offset(), finding}); }

    std::list<Diagnostic> findings_;
    FedSpans spans_;
    // Offsets below are offsets in text_, unless a comment says otherwise.
    std::string_view text_;         // what is known of the text
    std::size_t text_offset_ = 0;   // its offset in the whole text
    std::size_t first_offset_ = 0;  // the offset of the whole text
    bool is_complete_ = false;
    std::size_t next_ = 0;  // the next byte to feed

    const TextRewriter* rewriter_ = nullptr;
    Rewriting rewriting_;  // the next, if there is one
    bool has_rewriting_ = false;
    std::size_t next_rewriting_ = 0;  // where it begins; the end of the text for none
    std::size_t decided_ = 0;         // how far the text may be fed
    std::size_t words_fed_ = 0;       // the bytes of its words that have been fed

    char buffer_[CAPACITY + 1] = {};
    std::size_t begin_ = 0;   // in the buffer: what has not been consumed
    std::size_t prefix_ = 0;  // the bytes of that which open spans again
    std::size_t end_ = 0;     // in the buffer
    bool is_full_ = false;    // the next piece has no room

    SourceMap map_;           // of what has been fed
    std::size_t origin_ = 0;  // the position in it of the first byte of the buffer

    // How far each search of find_ahead() has come.
    std::size_t next_tag_ = 0;
    std::size_t next_tag_end_ = 0;
    std::size_t next_nul_ = 0;

    std::size_t not_spoken_end_ = 0;  // of the last run outside ASCII that was reported
};

}  // namespace kavi::host

#endif  // KAVI_HOST_TEXT_WINDOW_H

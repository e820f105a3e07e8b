// The stretch of a long text that the engine is given next.
#ifndef KAVI_HOST_TEXT_WINDOW_H
#define KAVI_HOST_TEXT_WINDOW_H

#include <deque>
#include <optional>
#include <string_view>
#include <vector>

#include "for_host_layer.h"
#include "tts_findings.h"
#include "tts_places.h"

namespace kavi::host {

// The spans that are open where a text is fed, those included that are left out with their closing
// tags. Bounded, however many tags are opened: of those left out deeper than that, only the number
// is kept, and the kind of their closing tags is not checked.
class FedSpans {
  public:
    void clear();

    // Whether the engine's record has room for one more, and the builder's chain for its value:
    // ten names are never too long. What stands inside of the deepest is left out with it.
    bool has_room() const {
        return n_open_ < tn::OPEN_TAGS_MAX && deeper_ == 0 && spans_.size() < SPANS_MAX;
    }
    bool value_fits(std::string_view tag) const;

    void open(std::string_view tag, const tn::MarkupTag* row, bool left_out);

    // Whether the innermost span is of the kind that this row of the table opens, and its opening
    // tag was left out.
    bool is_innermost(const tn::MarkupTag* row) const;
    bool innermost_is_left_out() const { return deeper_ > 0 || spans_.back().left_out; }
    void close_innermost();

    bool any() const { return !spans_.empty(); }
    bool any_fed() const { return n_open_ > 0; }

  private:
    struct Span {
        const tn::MarkupTag* row;
        std::size_t value_length;
        bool left_out;
    };

    static constexpr std::size_t SPANS_MAX = 64;

    std::vector<Span> spans_;  // outermost first
    std::size_t deeper_ = 0;   // left out, inside these
    int n_open_ = 0;           // not left out
    std::size_t values_ = 0;   // of these, the lengths of the values with a tab after each
};

// Feeds a text of any length through a buffer: the opening tags of the spans that are open, then
// text that has not been read yet. Checks the markup on the way in, leaves out what the engine
// would stop at, and knows for every byte in the buffer where it came from.
class TextWindow {
  public:
    void begin(std::string_view text);

    // Tops the buffer up when little is left in it. False when there is no text left to read.
    // `moved` tells whether what is left stands elsewhere now.
    bool fill(bool& moved);

    // What is to be read next, with one byte after it that may be written, and its length.
    char* text() { return buffer_ + begin_; }
    std::size_t length() const { return end_ - begin_; }

    // Whether the rest of the text is in the buffer.
    bool holds_rest() const { return next_ == text_.size(); }

    // Where to cut so that at most about `size` bytes of new text stand before the cut: after a
    // blank if there is one, never inside a tag or a word that fits a section. Always some text,
    // and no more than there is.
    std::size_t cut_position(std::size_t size) const;

    // Moves on to `rest`, a place in the buffer where `open` are the tags that are open.
    void consume(const char* rest, const SsmlTagArr& open);

    // Where in the text a byte of the buffer comes from; `text()` is the first that has not been
    // consumed.
    std::size_t source_offset(const char* at) const;

    class Sources;

    // Where in the text all from `text()` up to there stands as it is here; nothing if it does not.
    std::optional<std::size_t> copied_from(const char* end) const {
        if (prefix_ != 0 || (!gaps_.empty() && gaps_.front().at <= position(end))) return {};
        return origin_ + begin_ + left_out_;
    }

    // What was found in what has been fed, in order; the reader takes them off.
    std::deque<Diagnostic>& findings() { return findings_; }

  private:
    struct Gap {
        std::size_t at;      // after the blank that stands for it
        std::size_t length;  // without that
    };

    static constexpr std::size_t CAPACITY = std::size_t{4} * SZ_TEXT_MAX_LEN;

    std::string_view rest() const { return text_.substr(next_); }
    std::size_t position(const char* at) const {
        return origin_ + static_cast<std::size_t>(at - buffer_);
    }
    std::size_t room() const { return CAPACITY - end_; }
    std::size_t find_from_here(char c, std::size_t most, std::size_t& memo) const;

    // ---- each takes one piece of the text, or answers false when it needs more room ----
    bool feed();
    bool feed_run();
    void report_not_spoken(std::string_view run);
    bool feed_tag();
    bool feed_kept(std::string_view tag);
    bool feed_as_text(Finding finding, bool keep);
    bool feed_removed(std::string_view tag);
    bool feed_opening(std::string_view tag, const tn::MarkupTag* row);
    bool feed_closing(std::string_view tag, const tn::MarkupTag* opening);
    bool copy(std::string_view piece);
    bool copy_without_nuls(std::string_view piece);
    bool leave_out(std::size_t length);

    bool ends_in_tag_beginning() const;
    void report(Finding finding) { findings_.push_back({next_, finding}); }

    std::deque<Diagnostic> findings_;
    FedSpans spans_;
    std::string_view text_;
    std::size_t next_ = 0;  // the next byte of the text to feed

    char buffer_[CAPACITY + 1] = {};
    std::size_t begin_ = 0;   // of what has not been consumed, in the buffer
    std::size_t prefix_ = 0;  // how much of that opens spans again
    std::size_t end_ = 0;

    // Positions of bytes count what was fed; what is left out counts for one.
    std::size_t origin_ = 0;    // of the first byte of the buffer
    std::size_t left_out_ = 0;  // bytes left out before what has not been consumed
    std::deque<Gap> gaps_;      // after that

    // Where the next of these stands in the text, as far as it is known.
    std::size_t next_tag_ = 0;
    std::size_t next_tag_end_ = 0;
    std::size_t next_nul_ = 0;

    std::size_t not_spoken_end_ = 0;  // of the last stretch that was reported, in the text
};

// Lists what the bytes of a sentence stand for, from `text()` on: in order, and before the
// window moves on.
class TextWindow::Sources {
  public:
    Sources(const TextWindow& window, std::vector<SourcePiece>& pieces)
        : window_(window),
          pieces_(pieces),
          from_(window.begin_),
          left_out_(window.left_out_),
          next_gap_(window.gaps_.begin()) {}

    // The sentence has a copy of what stands in the window up to there.
    void copied_up_to(const char* end) {
        const auto index = static_cast<std::size_t>(end - window_.buffer_);
        if (from_ < window_.begin_ + window_.prefix_) pass_prefix(index);
        while (is_gap_up_to(index)) pass_gap();
        copy_up_to(index);
    }

    // It has `length` other bytes for this piece of the window.
    void replaced(std::string_view source, std::size_t length);

    // It has `length` bytes more, for nothing.
    void added(std::size_t length) { add(length, {offset(), 0}, nullptr); }

  private:
    void add(std::size_t length, TextRange source, const char* rule) {
        pieces_.push_back({at_, length, source, rule});
        at_ += length;
    }
    bool is_gap_up_to(std::size_t index) const {
        return next_gap_ != window_.gaps_.end() && next_gap_->at <= window_.origin_ + index;
    }
    // Nothing is left out before that.
    void copy_up_to(std::size_t index) {
        const std::size_t length = index - from_;
        if (length > 0) add(length, {offset(), length}, nullptr);
        from_ = index;
    }
    void pass_prefix(std::size_t index);
    void pass_gap();
    void pass(std::size_t index);
    std::size_t offset() const { return window_.origin_ + from_ + left_out_; }

    const TextWindow& window_;
    std::vector<SourcePiece>& pieces_;
    std::size_t from_;      // the next byte of the buffer
    std::size_t at_ = 0;    // the next byte of the sentence
    std::size_t left_out_;  // bytes left out before the next
    std::deque<Gap>::const_iterator next_gap_;
};

}  // namespace kavi::host

#endif  // KAVI_HOST_TEXT_WINDOW_H

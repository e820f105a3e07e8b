// The pre-pass: raw text to one sentence, with markup that is well formed by itself.
#ifndef KAVI_TN_SENTENCE_CUTTER_H
#define KAVI_TN_SENTENCE_CUTTER_H

#include <string_view>

#include "../common/bounded_text.h"
#include "../common/limits.h"
#include "../markup/markup_tags.h"
#include "../markup/tag_ends.h"
#include "PostProcTN.h"
#include "abbreviation.h"

namespace kavi::tn {

// Is told what the sentence has otherwise than its source; everything else is copied byte by byte.
class CutObserver {
  public:
    // `source` stands as `length` bytes at `target_at` of the sentence: an expanded abbreviation,
    // or nothing in the place of a removed tag or a blank.
    virtual void on_replaced(std::string_view source, int target_at, int length) = 0;

  protected:
    ~CutObserver() = default;
};

// One scan of a source text, from its start to the end of its first sentence.
class SentenceCutter {
  public:
    // A NUL follows `source`; `target` are 4096 bytes that hold an empty text. `abbreviations` may
    // have served earlier sentences of the same source; `observer` may be null.
    SentenceCutter(std::string_view source, char* target, AbbreviationSearch& abbreviations,
                   CutObserver* observer)
        : next_(source.data()),
          source_end_(next_ + source.size()),
          stretch_(next_),
          target_(target, SZ_TEXT_MAX_LEN),
          abbreviations_(abbreviations),
          observer_(observer) {
        tags_.begin_arr_len = 0;
    }
    SentenceCutter(const SentenceCutter&) = delete;
    SentenceCutter& operator=(const SentenceCutter&) = delete;

    // Writes the sentence, and closes its spans at its end. False when malformed markup stops the
    // pass: the spans stay open, and what follows is not to be read.
    bool cut();

    // After cut(): where the sentence's own source ends; what has been added closes its spans.
    const char* end() const { return next_; }
    int length_before_closing() const { return length_before_closing_; }

    // After cut(): where the next sentence begins, once what is silent has been passed over.
    std::string_view rest() const;

    // After cut(): how long the sentence is.
    int length() const { return target_.length(); }

    // After cut(): the spans that are open there.
    const SsmlTagArr& open_tags() const { return tags_; }

  private:
    inline bool take_next();
    inline void drop_leading_blank();
    inline bool between_digits() const;
    inline void mark(bool ends_sentence);
    inline void run();
    inline void full_stop();
    inline void begin_stretch(const char* text);
    inline bool expand_abbreviation();

    inline bool markup();
    inline void pass(std::string_view tag);
    inline void keep(std::string_view tag);
    inline bool copy_tag(std::string_view tag);
    inline bool open_span(std::string_view tag);
    inline bool close_span(const MarkupTag& tag);
    inline bool close_open_spans();

    inline void report(std::string_view source, int target_at);

    const char* next_;  // the read position
    const char* source_end_;
    const char* stretch_;           // where the next abbreviation search begins
    bool hides_full_stop_ = false;  // a tag that was passed since has one inside
    BoundedText target_;
    AbbreviationSearch& abbreviations_;
    CutObserver* observer_;
    char previous_ = 0;  // the last character that the scan recorded; tags do not count
    bool stop_ = false;  // the sentence has ended
    int length_before_closing_ = 0;
    SsmlTagArr tags_;  // of its entries, those below begin_arr_len hold texts
    TagEnds tag_ends_;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_SENTENCE_CUTTER_H

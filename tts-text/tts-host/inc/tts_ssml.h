// Records as SSML 1.1, the speech synthesis markup that voices take.
#ifndef KAVI_TTS_SSML_H
#define KAVI_TTS_SSML_H

#include <set>
#include <string>
#include <string_view>

#include "tts_host.h"
#include "tts_plain.h"
#include "tts_text_buffer.h"

namespace kavi {

// Before the first sentence of a document, and after the last.
extern const char* const SSML_BEGIN;
extern const char* const SSML_END;

// An "s" element, and a line end; nothing for a sentence that has neither words nor a break. Words
// and punctuation are as PlainForm has them. Breaks are "break" elements: with their time, or for a
// forced pause with a strength. Words next to each other with the same attributes share their
// elements. docs/ssml.md tells which value becomes which.
class SsmlForm {
  public:
    // With `has_marks`, a "mark" element precedes each word, named OFFSET-LENGTH after the
    // bytes that it was read from.
    explicit SsmlForm(bool has_marks) : has_marks_(has_marks) {}

    // Of the next sentence that was read from `text`, which begins at `text_begin` when what is
    // before it is not there any more.
    void read(const HostSentence& sentence, std::string_view text, std::size_t text_begin = 0);

    // That; it lives until the next call.
    std::string_view all() const { return all_.text(); }

    // What has no counterpart in the standard and was left out: names and values, as in "poem=a".
    // It is added to; the caller may take it.
    std::set<std::string>& lost() { return lost_; }

  private:
    // The elements around a word; empty: no such element. `prosody` is attributes, `level` a value.
    struct Elements {
        TextBuffer prosody;
        std::string_view level;
    };

    std::size_t end_of_closing_marks(std::size_t record) const;
    std::size_t begin_of_opening_marks(std::size_t record) const;
    std::size_t place_of(std::string_view part) const;
    void copy_to(std::size_t end);
    void enter_elements(const CssmlTag& tag, std::size_t begin);
    bool write_break(const UtteranceSyllable& record);

    bool has_marks_;
    TextBuffer all_;
    PlainForm plain_;
    bool is_plain_ = false;      // nothing in that is escaped
    std::size_t copied_ = 0;     // of that
    std::size_t next_word_ = 1;  // that has not been copied
    std::size_t n_records_ = 0;
    Elements open_;
    Elements next_;  // of the word at hand
    std::set<std::string> lost_;
};

}  // namespace kavi

#endif  // KAVI_TTS_SSML_H

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

// A sentence as an "s" element and a line end; empty for one that has neither words nor a break.
// Words and punctuation are as PlainForm has them. Breaks are "break" elements: with their time, or
// for a forced pause with a strength. Adjacent words with the same attributes share their elements.
// docs/ssml.md has the values.
class SsmlForm {
  public:
    // With `has_marks`, a "mark" element precedes each word, named OFFSET-LENGTH after the
    // bytes that it was read from.
    explicit SsmlForm(bool has_marks) : has_marks_(has_marks) {}

    // Makes the form of a sentence, as PlainForm::read() does.
    void read(const HostSentence& sentence, std::string_view text, std::size_t text_begin = 0);

    // The form; valid until the next call of read().
    std::string_view all() const { return all_.text(); }

    // The attributes that have no counterpart in the standard and were left out, as in "poem=a", of
    // all sentences so far. The caller may empty it.
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
    bool is_plain_ = false;      // nothing in plain_ needs an escape
    std::size_t copied_ = 0;     // the bytes of plain_ that have been copied
    std::size_t next_word_ = 1;  // the record of the next word to be copied
    std::size_t n_records_ = 0;
    Elements open_;
    Elements next_;  // of the word at hand
    std::set<std::string> lost_;
};

}  // namespace kavi

#endif  // KAVI_TTS_SSML_H

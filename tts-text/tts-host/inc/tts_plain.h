// A sentence as text that people read.
#ifndef KAVI_TTS_PLAIN_H
#define KAVI_TTS_PLAIN_H

#include <string_view>
#include <vector>

#include "tts_host.h"
#include "tts_text_buffer.h"

namespace kavi {

// The words of a sentence, and between them the punctuation and the blanks that were written there.
// The plain texts of the sentences of a text, one after the other, are the plain text of it all.
//
// Blanks stay as they were written; a run of them with anything else in it, such as a line end,
// markup or a sign that is not spoken, is one blank. Where nothing is left between two words, one
// blank is. The blanks between two sentences are before the later one; there are none at the begin
// and the end of the text.
class PlainForm {
  public:
    // Makes the form of a sentence, while its handler runs: of each sentence of a text in turn.
    // `text` is the text from the offset `text_begin` on; TtsStream::text() has enough of it. The
    // views below are valid until the next call.
    void read(const HostSentence& sentence, std::string_view text, std::size_t text_begin = 0);

    std::string_view all() const { return all_.text(); }

    // The text before the first word.
    std::string_view before() const { return after(0); }

    // What follows the word of a record, up to the next word; of the head record, before().
    std::string_view after(std::size_t record) const {
        const Range& range = after_[record];
        return all().substr(range.begin, range.end - range.begin);
    }

  private:
    struct Range {
        std::size_t begin;
        std::size_t end;
    };

    void add_gap(std::string_view gap);
    void end_before(std::string_view text, bool is_last);

    TextBuffer all_;
    std::vector<Range> after_;    // for each record, what follows it in all_; there may be more
    bool is_after_word_ = false;  // nothing follows the last word: its marks were read with it
};

}  // namespace kavi

#endif  // KAVI_TTS_PLAIN_H

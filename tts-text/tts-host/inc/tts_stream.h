// A text that is still being written: pieces in, sentences out as soon as they can be told.
#ifndef KAVI_TTS_STREAM_H
#define KAVI_TTS_STREAM_H

#include <cstddef>
#include <string_view>

#include "tts_host.h"
#include "tts_text_buffer.h"

namespace kavi {

// Reads a text that comes in pieces of any bytes and any length, which may end inside a word, a tag
// or a character. Handlers are called as TtsHost::read() would call them for the whole text: the
// same sentences, records, places and findings in the same order, each as soon as nothing that may
// follow can change it. For a clause that is mostly when the next word has begun, or, where a
// rewriter reads, ended. At most about 100 KB of text are kept, and a megabyte of bytes outside
// ASCII in a row. All offsets count from the start of the stream.
class TtsStream {
  public:
    // Has the host, which outlives it, to itself: meanwhile that reads nothing else, and a second
    // stream of it takes nothing. It reads as the host's rewriter makes the text, which must stay
    // and should take growing texts. Handlers may be empty.
    TtsStream(TtsHost& host, TtsHost::SentenceHandler on_sentence,
              TtsHost::DiagnosticHandler on_diagnostic);
    ~TtsStream();
    TtsStream(const TtsStream&) = delete;
    TtsStream& operator=(const TtsStream&) = delete;

    // The text goes on with this piece, which may be empty and need not stay. Hands over what can
    // be told. False when the text has ended, and then nothing is taken: by end(), or since a
    // handler answered false or threw. False too in a handler.
    bool add(std::string_view piece);

    // The text ends here. Hands over all of it that was not told. True when none of it was passed
    // over, as with TtsHost::read(); false when the text had ended before. Not in a handler: false,
    // and it goes on.
    bool end();

    // Interrupted: what was not told is dropped, and what is added next begins a new text, with no
    // span open; its offsets go on. Also after the end. Called in a handler, it takes effect when
    // that returns: no handler is called any more, and that call of add() or end() answers false.
    void forget();

    // In a handler: what is there of the text, from the offset text_begin() on, for PlainForm,
    // SsmlForm and explain(). It has all of the sentence, but for the begin of one of more than
    // 64 KB.
    std::string_view text() const { return kept_.text(); }
    std::size_t text_begin() const { return kept_begin_; }

  private:
    bool read(bool is_complete);
    bool take(std::string_view part);
    bool may_tell(std::size_t added) const;
    void drop_told();

    TtsHost& host_;
    host::TextReader& reader_;
    TtsHost::SentenceHandler on_sentence_;
    TtsHost::DiagnosticHandler on_diagnostic_;
    TextBuffer kept_;             // of the text
    std::size_t kept_begin_ = 0;  // its offset
    std::size_t unread_ = 0;      // bytes at its end that have been added since it was read
    std::size_t mark_ = 0;        // in it, the first mark that may end a clause; its size for none
    const bool is_owner_;         // of the host's reader
    bool is_open_ = false;
    bool is_forgotten_ = false;  // by a handler
};

}  // namespace kavi

#endif  // KAVI_TTS_STREAM_H

// A text that is still being written: pieces in, sentences out as soon as they are certain.
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
    // Uses `host`, which must outlive it, exclusively: meanwhile host.read() reads nothing, and a
    // second stream of the same host takes nothing. The host's rewriter must not be replaced
    // meanwhile, and should take growing texts. Handlers may be empty.
    TtsStream(TtsHost& host, TtsHost::SentenceHandler on_sentence,
              TtsHost::DiagnosticHandler on_diagnostic);
    ~TtsStream();
    TtsStream(const TtsStream&) = delete;
    TtsStream& operator=(const TtsStream&) = delete;

    // The text goes on with this piece, which may be empty and is copied. Calls the handlers with
    // what is certain now. False, with nothing taken, when the text has ended: by end(), or since a
    // handler returned false or threw. False too when called from a handler.
    bool add(std::string_view piece);

    // The text ends here. Calls the handlers with the rest of it. True when none of it was passed
    // over, as with TtsHost::read(); false when the text had ended before. Called from a handler,
    // it does nothing and returns false.
    bool end();

    // Drops what has not been handed over. What is added next begins a new text, with no span open;
    // its offsets go on. Also after the end. Called from a handler, it takes effect when that
    // returns: no handler is called any more, and that call of add() or end() returns false.
    void forget();

    // In a handler: what is kept of the text, which begins at the offset text_begin(), for
    // PlainForm, SsmlForm and explain(). It has all of the sentence, except the begin of one of
    // more than 64 KB.
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
    TextBuffer kept_;             // the end of the text so far
    std::size_t kept_begin_ = 0;  // the offset of that in the text
    std::size_t unread_ = 0;      // the bytes added since the last read
    std::size_t mark_ = 0;        // the offset in kept_ of the first mark that may end a clause, or
                                  // its size
    const bool is_owner_;         // false for a second stream of the host
    bool is_open_ = false;        // add() takes text
    bool is_forgotten_ = false;   // a handler has called forget()
};

}  // namespace kavi

#endif  // KAVI_TTS_STREAM_H

// Everything that a host does around the engine, done once: texts of any length in, sentences out.
#ifndef KAVI_TTS_HOST_H
#define KAVI_TTS_HOST_H

#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>

#include "MemoryStack.h"
#include "ShareObj.h"
#include "tts_findings.h"
#include "tts_places.h"
#include "tts_rewriter.h"

namespace kavi {

// One sentence or clause. All it refers to is valid until the handler returns that it is passed to.
struct HostSentence {
    TextRange source;             // begins where that of the last sentence ended
    std::string_view normalized;  // what eng_text_normalize made of it; NUL-terminated
    std::string_view speakable;   // what eng_text_tokenize made of that; NUL-terminated
    // What eng_text_to_utterance_syllable makes of that, the head record first. The records and all
    // their words are one block of the arena, which stays the host layer's.
    const UtteranceSyllable* records;
    int n_records;           // with the head record
    SentencePlaces& places;  // where its parts come from

    // Whether it ends with a full stop, a question mark, an exclamation mark or the text; otherwise
    // it is a clause of a sentence that goes on.
    bool ends_sentence;
};

namespace host {
class TextReader;
}

// Makes the three calls of the engine. One object serves one thread at a time; objects share
// nothing.
class TtsHost {
  public:
    // A handler returns whether to go on. An empty one is not called.
    using SentenceHandler = std::function<bool(const HostSentence&)>;
    using DiagnosticHandler = std::function<bool(const Diagnostic&)>;

    // With an arena of its own, made by mem_stack_create(n_capacity): the bytes in use at most, 0
    // for no limit. A host with another arena links without these services if it does not call
    // this. Throws std::bad_alloc when the system has no memory for it.
    explicit TtsHost(std::size_t n_capacity = 0);

    // With an arena of the caller, which must outlive this object and which nobody else uses during
    // a call of read(). Between calls no block of it is in use here.
    explicit TtsHost(mem_stack_handle arena);

    // From the next text on, `rewriter` rewrites what is read; null: nothing does. It belongs to
    // the caller and must outlive its use. All offsets that handlers get are of the text as
    // written.
    void rewrite_by(const TextRewriter* rewriter);

    ~TtsHost();
    TtsHost(const TtsHost&) = delete;
    TtsHost& operator=(const TtsHost&) = delete;

    // Reads a text of any length and any bytes, which must not change meanwhile, and calls
    // `on_sentence` for each sentence in order. The diagnostics of a sentence come directly before
    // it, in the order of their offsets, those after the last sentence at the end. The sources of
    // the sentences cover the text, except pieces that were passed over and text without speech
    // after the last sentence. Returns true unless a piece was passed over.
    //
    // A text of up to 4,095 bytes whose sentences have up to 3,000 when they are normalised comes
    // out as if the engine had been called by hand. A sentence that the engine's buffers or the
    // arena do not hold is cut at blanks, with its markup spans closed and opened again. Malformed
    // markup at which the engine would stop is left out, with a diagnostic. Where the arena is too
    // small even for a short piece, that piece is passed over, with a diagnostic.
    //
    // When a handler returns false, the rest of the text is not read, no handler is called any
    // more, and read() returns false. What a handler throws comes through. Either way the object
    // can read another text. Called from a handler of the same object, or while a TtsStream has it,
    // read() reads nothing and returns false.
    bool read(std::string_view text, const SentenceHandler& on_sentence,
              const DiagnosticHandler& on_diagnostic);

  private:
    friend class TtsStream;
    TtsHost(mem_stack_handle arena, void (*destroy)(mem_stack_handle));

    std::unique_ptr<host::TextReader> reader_;
    bool has_stream_ = false;
};

}  // namespace kavi

#endif  // KAVI_TTS_HOST_H

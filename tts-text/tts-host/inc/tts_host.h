// Everything that a host does around the engine, done once: texts of any length in, sentences out.
#ifndef KAVI_TTS_HOST_H
#define KAVI_TTS_HOST_H

#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>

#include "ShareObj.h"
#include "tts_findings.h"

namespace kavi {

// An abbreviation that was written out.
struct Expansion {
    std::size_t offset;  // of what was written, in the text given to read()
    std::size_t length;
    std::size_t at;  // of its words, in the normalised sentence
    std::size_t length_there;
};

struct HostSentence {
    std::size_t offset;                // where its source begins, in the text given to read()
    std::size_t length;                // of its source, which begins where the last one ended
    std::string_view normalized;       // what eng_text_normalize made of it
    std::string_view speakable;        // what eng_text_tokenize made of that; NUL-terminated
    const UtteranceSyllable* records;  // what eng_text_to_utterance_syllable made of that
    int n_records;
    const Expansion* expansions;  // in order
    std::size_t n_expansions;
};

// Owns an arena and an engine. One object serves one thread at a time; objects share nothing.
class TtsHost {
  public:
    using SentenceHandler = std::function<void(const HostSentence&)>;
    using DiagnosticHandler = std::function<void(const Diagnostic&)>;

    // `n_capacity` bounds the arena, in bytes; 0: no limit.
    explicit TtsHost(std::size_t n_capacity = 0);
    ~TtsHost();
    TtsHost(const TtsHost&) = delete;
    TtsHost& operator=(const TtsHost&) = delete;

    // Reads a text of any length and any bytes, which must stay as it is meanwhile, and calls
    // `on_sentence` for each sentence in order; what the call is given lives until it returns.
    // The diagnostics of a sentence come directly before it, in the order of their offsets, those
    // after the last sentence at the end. The sources of the sentences cover the text, but for
    // what was passed over and what is silent after the last sentence. An empty handler is not
    // called.
    //
    // A text of up to 4,095 bytes whose sentences have up to 3,000 when they are normalised comes
    // out as if the engine had been called by hand. A sentence that the engine's buffers or the
    // arena do not hold is cut at blanks, with its markup spans closed and opened again. Malformed
    // markup at which the engine would stop is left out, with a diagnostic. Where the arena is too
    // small even for a short piece, that piece is passed over, with a diagnostic. True when there
    // was none of these.
    //
    // Called from a handler of the same object, it reads nothing and answers false. What a handler
    // throws comes through; the rest of the text is not read, and the object can read another.
    bool read(std::string_view text, const SentenceHandler& on_sentence,
              const DiagnosticHandler& on_diagnostic);

  private:
    class State;
    std::unique_ptr<State> state_;
};

}  // namespace kavi

#endif  // KAVI_TTS_HOST_H

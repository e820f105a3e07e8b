// Everything that a host does around the engine, done once: texts of any length in, sentences out.
#ifndef KAVI_TTS_HOST_H
#define KAVI_TTS_HOST_H

#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>

#include "ShareObj.h"

namespace kavi {

// What the engine passes over in silence, or could not do.
enum class Finding {
    stray_closing_tag,
    mismatched_closing_tag,
    too_many_open_tags,
    too_much_open_markup,
    tag_too_long,
    tag_inside_tag,
    tag_never_closed,
    nul_byte,
    digits_not_read,
    reading_cut,
    arena_too_small,
};

// One clear sentence about a finding; a constant text.
const char* describe(Finding finding);

struct Diagnostic {
    std::size_t offset;  // of the first byte it is about, in the text given to read()
    Finding finding;
};

struct HostSentence {
    std::size_t offset;                // where its source begins, in the text given to read()
    std::size_t length;                // of its source, which begins where the last one ended
    std::string_view normalized;       // what eng_text_normalize made of it
    std::string_view speakable;        // what eng_text_tokenize made of that; NUL-terminated
    const UtteranceSyllable* records;  // what eng_text_to_utterance_syllable made of that
    int n_records;
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
    // behind the last sentence at the end. The sources of the sentences cover the text, but for
    // what was passed over and what is silent behind the last sentence.
    //
    // A text of up to 4,095 bytes with sentences of up to 3,000 comes out as if the engine had been
    // called by hand. A sentence that the engine's buffers or the arena do not hold is cut at
    // blanks, with its markup spans closed and opened again. Malformed markup at which the engine
    // would stop is left out, with a diagnostic. Where the arena is too small even for a short
    // piece, that piece is passed over, with a diagnostic. True when there was none of these.
    // The handlers must not throw.
    bool read(std::string_view text, const SentenceHandler& on_sentence,
              const DiagnosticHandler& on_diagnostic);

  private:
    class State;
    std::unique_ptr<State> state_;
};

}  // namespace kavi

#endif  // KAVI_TTS_HOST_H

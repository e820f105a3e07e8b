// Why a sentence is read as it is.
#ifndef KAVI_TTS_EXPLAIN_H
#define KAVI_TTS_EXPLAIN_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tts_host.h"

namespace kavi {

// A run of sections that were read together.
struct ExplainedRun {
    std::size_t at;  // of its bytes in the normalised sentence
    std::size_t length;
    std::vector<std::string> sections;  // these bytes, as they were cut
    std::string reading;                // what was written for them; empty for nothing
    std::size_t reading_at;             // of that in the speakable text
    const char* rule;                   // the rule that chose it, in the field's words
};

// The runs of one sentence as eng_text_normalize wrote it (at most 4095 bytes), in order: together
// they are the sentence as it stands, or as much of it as fits the engine's output.
std::vector<ExplainedRun> explain(std::string_view normalized);

// The abbreviations of a sentence of `text`, in order: each a run with what was written in the text
// for its one section, and with its words in the normalised sentence for its reading.
std::vector<ExplainedRun> explain_abbreviations(const HostSentence& sentence,
                                                std::string_view text);

}  // namespace kavi

#endif  // KAVI_TTS_EXPLAIN_H

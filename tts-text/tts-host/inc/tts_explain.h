// Why a sentence is read as it is.
#ifndef KAVI_TTS_EXPLAIN_H
#define KAVI_TTS_EXPLAIN_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tts_host.h"
#include "tts_places.h"

namespace kavi {

// A run of sections that were read together.
struct ExplainedRun {
    TextRange source;                   // its bytes
    std::vector<std::string> sections;  // these, as they were cut; a character is not broken
    std::string reading;                // what was written for them; empty for nothing
    std::size_t reading_at;             // of that in the speakable text
    std::string rule;                   // the rule that chose it, in the field's words
    bool is_word;                       // read by the rule that copies a word
};

// The runs of one sentence as eng_text_normalize wrote it (at most 4095 bytes), in order: together
// they are the sentence as it stands, or as much of it as fits the engine's output. Their sources
// are places in `normalized`.
std::vector<ExplainedRun> explain(std::string_view normalized);

// The same with places in `text`, which the sentence was read from. An abbreviation is one run, by
// the rule "abbreviation", with what was written in the text for its section; so is what a rewriter
// has rewritten, by its rule, with the file and line that say so. A tag that closes or
// opens a span where the text was cut has an empty source; what was left out is in none.
std::vector<ExplainedRun> explain(const HostSentence& sentence, std::string_view text);

}  // namespace kavi

#endif  // KAVI_TTS_EXPLAIN_H

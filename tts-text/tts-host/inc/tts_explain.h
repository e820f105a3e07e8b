// Why a sentence is read as it is.
#ifndef KAVI_TTS_EXPLAIN_H
#define KAVI_TTS_EXPLAIN_H

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

#include "tts_host.h"
#include "tts_places.h"

namespace kavi {

// A run of sections that were read together. Valid during the call that it is passed to.
struct ExplainedRun {
    TextRange source;                        // its bytes
    std::vector<std::string_view> sections;  // these, as they were cut; a character is not broken
    std::string_view reading;                // what was written for them; empty for nothing
    std::size_t reading_at;                  // the offset of that in the speakable text
    std::string_view rule;                   // the name of the rule that chose it
    bool is_word;  // read by the rule that copies a word; `rule` is a constant text then
};
using RunHandler = std::function<void(const ExplainedRun&)>;

// Calls `on_run` with the runs of one sentence as eng_text_normalize wrote it (at most 4095 bytes,
// no NUL), in order: together they are the whole sentence, or as much of it as fits the engine's
// output. Their sources are ranges of `normalized`.
void explain(std::string_view normalized, const RunHandler& on_run);

// The same with ranges of the text that the sentence was read from, while its handler runs. `text`
// is that text from the offset `text_begin` on; it has all of the sentence. An abbreviation is one
// run, by the rule "abbreviation", with what was written in the text for its section; so is what a
// rewriter has rewritten, by its rule, with the file and line of a lexicon. A tag that closes or
// opens a span where the text was cut has an empty source; what was left out is in no run.
void explain(const HostSentence& sentence, std::string_view text, const RunHandler& on_run,
             std::size_t text_begin = 0);

}  // namespace kavi

#endif  // KAVI_TTS_EXPLAIN_H

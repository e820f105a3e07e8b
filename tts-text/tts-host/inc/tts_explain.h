// Why a sentence is read as it is.
#ifndef KAVI_TTS_EXPLAIN_H
#define KAVI_TTS_EXPLAIN_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kavi {

// A run of sections that were read together.
struct ExplainedRun {
    std::size_t at;                     // where it begins in the sentence
    std::vector<std::string> sections;  // as they were cut
    std::string reading;                // what was written for them; empty for nothing
    const char* rule;                   // the rule that chose it, in the field's words
};

// Follows the engine's own dispatcher step by step. One object serves one thread.
class TtsExplainer {
  public:
    TtsExplainer();
    ~TtsExplainer();
    TtsExplainer(const TtsExplainer&) = delete;
    TtsExplainer& operator=(const TtsExplainer&) = delete;

    // The runs of one sentence as eng_text_normalize wrote it (at most 4095 bytes), in order: all
    // its sections, or up to where the engine stopped reading.
    std::vector<ExplainedRun> explain(std::string_view normalized);

    // The abbreviations that were expanded between `source` and the sentence made of it.
    static std::vector<ExplainedRun> explain_abbreviations(std::string_view source,
                                                           std::string_view normalized);

  private:
    class State;
    std::unique_ptr<State> state_;
};

}  // namespace kavi

#endif  // KAVI_TTS_EXPLAIN_H

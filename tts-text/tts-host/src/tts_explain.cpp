#include "tts_explain.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

#include "common/ascii.h"
#include "tokenize/dispatcher.h"
#include "tokenize/section_queue.h"
#include "text_window.h"

namespace kavi {

namespace {

// In the order of ReadingRule.
const char* const RULE_NAMES[] = {
    "output full",
    "incomplete, not read",
    "word",
    "word in capitals",
    "month",
    "telephone label",
    "telephone number",
    "number with separators",
    "ordinal",
    "date",
    "fraction",
    "dollars and cents",
    "decimal",
    "clock time",
    "year",
    "ordinal day",
    "cardinal",
    "markup",
    "bracket or country code",
    "plus sign or country code",
    "contraction",
    "mark",
    "not spoken",
};
static_assert(std::size(RULE_NAMES) == static_cast<std::size_t>(ReadingRule::silent) + 1);

bool equals_ignoring_case(std::string_view text, std::string_view other) {
    if (text.size() != other.size()) return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (tn::to_lower(text[i]) != tn::to_lower(other[i])) return false;
    }
    return true;
}

// The row of the abbreviation at the start of `source` that `normalized` has the expansion of, or
// null.
const char (*expanded_row(std::string_view source, std::string_view normalized))[20] {
    for (const auto& row : s_spec_word_abbrevi) {
        const std::string_view expansion = row[1];
        if (equals_ignoring_case(source.substr(0, std::strlen(row[0])), row[0]) &&
            normalized.substr(0, expansion.size()) == expansion &&
            normalized.substr(expansion.size(), 1) == " ") {
            return row;
        }
    }
    return nullptr;
}

}  // namespace

class TtsExplainer::State {
  public:
    State() : arena_(mem_stack_create(0)) { engine_.init(arena_); }
    ~State() { mem_stack_destroy(arena_); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    std::vector<ExplainedRun> explain(std::string_view normalized) {
        std::vector<ExplainedRun> runs;
        std::string sentence(normalized);  // the engine takes no constant texts
        tn::SectionQueue queue(arena_);
        if (engine_.text_to_queue(sentence.data(), queue.head) != 0) return runs;
        char speakable[SZ_TEXT_MAX_LEN] = {};
        std::size_t length = 0;
        std::size_t at = 0;
        tn::BoundedText output(speakable, SZ_TEXT_MAX_LEN);
        SectionDispatcher dispatcher(engine_, queue.head, output);
        while (Section* first = dispatcher.section()) {
            // Taken down before the step, which may rewrite them: of a step, at most its range.
            std::vector<std::string> ahead;
            for (const Section* s = first; s != nullptr && ahead.size() < STEP_MAX;
                 s = s->m_pnext) {
                ahead.emplace_back(s->sz_char);
            }
            const ReadingRule rule = dispatcher.step();
            const Section* last = dispatcher.section();
            const bool stops = rule == ReadingRule::full || rule == ReadingRule::end;
            ahead.resize(stops || last == nullptr ? ahead.size() : distance(first, last) + 1);
            const std::string_view written = speakable + length;
            length += written.size();
            const std::size_t begin = at;
            for (const std::string& section : ahead) at += section.size();
            runs.push_back({begin, std::move(ahead), std::string(written),
                            RULE_NAMES[static_cast<std::size_t>(rule)]});
            if (stops) break;
            dispatcher.advance(first);
        }
        return runs;
    }

  private:
    // No reader takes more sections than a bracket with a telephone number.
    static constexpr std::size_t STEP_MAX = 12;

    static std::size_t distance(const Section* first, const Section* last) {
        std::size_t n = 0;
        for (; first != last; first = first->m_pnext) ++n;
        return n;
    }

    mem_stack_handle arena_;
    PostProTnEng engine_;
};

TtsExplainer::TtsExplainer() : state_(std::make_unique<State>()) {}

TtsExplainer::~TtsExplainer() = default;

std::vector<ExplainedRun> TtsExplainer::explain(std::string_view normalized) {
    return state_->explain(normalized);
}

std::vector<ExplainedRun> TtsExplainer::explain_abbreviations(std::string_view source,
                                                              std::string_view normalized) {
    std::vector<ExplainedRun> runs;
    const char* begin = normalized.data();
    while (!source.empty() && !normalized.empty()) {
        if (const auto* row = expanded_row(source, normalized)) {
            const std::size_t written = std::strlen(row[0]);
            runs.push_back({static_cast<std::size_t>(normalized.data() - begin),
                            {std::string(source.substr(0, written))},
                            std::string(row[1]) + " ",
                            "abbreviation"});
            source.remove_prefix(written);
            normalized.remove_prefix(std::strlen(row[1]) + 1);
        } else if (source[0] == normalized[0]) {
            source.remove_prefix(1);
            normalized.remove_prefix(1);
        } else if (const std::size_t tag = host::tag_length(normalized)) {
            normalized.remove_prefix(tag);  // opened again, or closed at the cut
        } else {
            source.remove_prefix(std::max<std::size_t>(host::tag_length(source), 1));
        }
    }
    return runs;
}

}  // namespace kavi

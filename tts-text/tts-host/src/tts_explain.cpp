#include "tts_explain.h"

#include <algorithm>

#include "for_host_layer.h"

namespace kavi {

namespace {

using tn::Outcome;
using tn::ReadingRule;
using tn::SectionDispatcher;
using tn::SectionWindow;

struct RuleName {
    ReadingRule rule;
    const char* name;
};

constexpr RuleName RULE_NAMES[] = {
    {ReadingRule::word, "word"},
    {ReadingRule::capital_letters, "word in capitals"},
    {ReadingRule::month, "month"},
    {ReadingRule::telephone_label, "telephone label"},
    {ReadingRule::telephone_number, "telephone number"},
    {ReadingRule::separated_number, "number with separators"},
    {ReadingRule::ordinal, "ordinal"},
    {ReadingRule::date, "date"},
    {ReadingRule::fraction, "fraction"},
    {ReadingRule::money, "dollars and cents"},
    {ReadingRule::decimal, "decimal"},
    {ReadingRule::clock_time, "clock time"},
    {ReadingRule::year, "year"},
    {ReadingRule::ordinal_day, "ordinal day"},
    {ReadingRule::cardinal, "cardinal"},
    {ReadingRule::markup_tag, "markup"},
    {ReadingRule::bracket, "bracket or country code"},
    {ReadingRule::plus_sign, "plus sign or country code"},
    {ReadingRule::contraction, "contraction"},
    {ReadingRule::mark, "mark"},
    {ReadingRule::silent, "not spoken"},
};

// A rule is found by its place.
constexpr bool are_in_order() {
    int place = 0;
    for (const RuleName& row : RULE_NAMES) {
        if (static_cast<int>(row.rule) != place++) return false;
    }
    return place == static_cast<int>(ReadingRule::silent) + 1;
}
static_assert(are_in_order());

const char* name_of(const SectionDispatcher& step, std::string_view written) {
    if (step.outcome() == Outcome::full) return "output full";
    const bool incomplete = step.outcome() == Outcome::ended && written.empty();
    return incomplete ? "incomplete, not read" : RULE_NAMES[static_cast<int>(step.rule())].name;
}

// Whether the run is bytes outside ASCII and `section` goes on with a character of theirs.
bool continues_character(const ExplainedRun& run, std::string_view section) {
    constexpr unsigned CONTINUATION = 0x80;
    constexpr unsigned CONTINUATION_MASK = 0xC0;
    return (static_cast<unsigned char>(section[0]) & CONTINUATION_MASK) == CONTINUATION &&
           static_cast<unsigned char>(run.sections.back().back()) >= CONTINUATION;
}

// Adds the sections of a step to a run.
void add_sections(const SectionDispatcher& step, ExplainedRun& run) {
    for (const Section* s = step.first(); s != nullptr; s = s->m_pnext) {
        const std::string_view section = SectionWindow::source(s);
        run.source.length += section.size();
        if (!run.sections.empty() && continues_character(run, section)) {
            run.sections.back() += section;
        } else {
            run.sections.emplace_back(section);
        }
        if (s == step.last()) break;
    }
}

// Whether a step belongs to the run before it: it is the letters that an apostrophe rewrites, or a
// byte of the same character.
bool goes_on(const SectionDispatcher& step, const ExplainedRun& run) {
    return SectionWindow::is_rewritten(step.first()) ||
           continues_character(run, SectionWindow::source(step.first()));
}

// The rule that has rewritten what stands at `at` of the sentence; empty for none.
std::string rewriting_rule(const HostSentence& sentence, std::size_t at) {
    for (const SourcePiece& piece : sentence.places.pieces()) {
        if (at < piece.at || at >= piece.at + piece.length || piece.rule == nullptr) continue;
        if (piece.file == nullptr) return piece.rule;
        return piece.rule + (" " + std::string(piece.file) + ":") +
               std::to_string(piece.line_number);
    }
    return {};
}

// Whether a run shares source with the one before it, as the words of an abbreviation do.
bool overlaps(const TextRange& source, const ExplainedRun& before) {
    return source.length > 0 && source.offset < before.source.offset + before.source.length;
}

}  // namespace

std::vector<ExplainedRun> explain(std::string_view normalized) {
    const std::string sentence(normalized);  // a NUL follows it
    char speakable[SZ_TEXT_MAX_LEN];
    speakable[0] = '\0';
    tn::BoundedText output(speakable, SZ_TEXT_MAX_LEN);
    tn::TagEnds tag_ends;
    SectionWindow window(SectionWindow::Reach::text_end, tag_ends);
    SectionDispatcher dispatcher(sentence.c_str(), window, output);
    std::vector<ExplainedRun> runs;
    while (dispatcher.next()) {
        const auto reading_at = static_cast<std::size_t>(dispatcher.output_before());
        if (runs.empty() || !goes_on(dispatcher, runs.back())) {
            const char* begin = SectionWindow::source(dispatcher.first()).data();
            runs.push_back({{static_cast<std::size_t>(begin - sentence.c_str()), 0},
                            {},
                            {},
                            reading_at,
                            name_of(dispatcher, speakable + reading_at),
                            dispatcher.rule() == ReadingRule::word});
        }
        add_sections(dispatcher, runs.back());
        runs.back().reading += speakable + reading_at;
    }
    return runs;
}

std::vector<ExplainedRun> explain(const HostSentence& sentence, std::string_view text) {
    std::vector<ExplainedRun> runs;
    for (ExplainedRun& run : explain(sentence.normalized)) {
        const std::size_t at = run.source.offset;
        run.source = sentence.places.source_of(at, run.source.length);
        if (!runs.empty() && overlaps(run.source, runs.back())) {
            ExplainedRun& before = runs.back();
            const std::size_t end = run.source.offset + run.source.length;
            before.source.length = std::max(before.source.length, end - before.source.offset);
            before.reading += run.reading;
            continue;
        }
        if (std::string rule = rewriting_rule(sentence, at); !rule.empty()) {
            run.rule = std::move(rule);
            run.is_word = false;
            run.sections = {std::string(text.substr(run.source.offset, run.source.length))};
        }
        runs.push_back(std::move(run));
    }
    return runs;
}

}  // namespace kavi

#include "tts_explain.h"

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

}  // namespace

std::vector<ExplainedRun> explain(std::string_view normalized) {
    const std::string sentence(normalized);  // a NUL follows it
    char speakable[SZ_TEXT_MAX_LEN] = "";
    tn::BoundedText output(speakable, SZ_TEXT_MAX_LEN);
    tn::TagEnds tag_ends;
    SectionWindow window(SectionWindow::Reach::text_end, tag_ends);
    SectionDispatcher dispatcher(sentence.c_str(), window, output);
    std::vector<ExplainedRun> runs;
    while (dispatcher.next()) {
        const char* begin = SectionWindow::source(dispatcher.first()).data();
        // The letters that an apostrophe rewrites are a step of their own.
        const bool goes_on = !runs.empty() && SectionWindow::is_rewritten(dispatcher.first());
        if (!goes_on) {
            runs.push_back({static_cast<std::size_t>(begin - sentence.c_str()), 0, {}, {}, 0, {}});
        }
        ExplainedRun& run = runs.back();
        for (const Section* s = dispatcher.first(); s != nullptr; s = s->m_pnext) {
            run.sections.emplace_back(SectionWindow::source(s));
            run.length += run.sections.back().size();
            if (s == dispatcher.last()) break;
        }
        run.reading_at = static_cast<std::size_t>(dispatcher.output_before());
        run.reading = speakable + run.reading_at;
        if (!goes_on) run.rule = name_of(dispatcher, run.reading);
    }
    return runs;
}

std::vector<ExplainedRun> explain_abbreviations(const HostSentence& sentence,
                                                std::string_view text) {
    std::vector<ExplainedRun> runs;
    for (std::size_t i = 0; i < sentence.n_pieces; ++i) {
        const SourcePiece& piece = sentence.pieces[i];
        if (!piece.is_abbreviation) continue;
        runs.push_back({piece.at,
                        piece.length,
                        {std::string(text.substr(piece.source.offset, piece.source.length))},
                        std::string(sentence.normalized.substr(piece.at, piece.length)),
                        0,
                        "abbreviation"});
    }
    return runs;
}

}  // namespace kavi

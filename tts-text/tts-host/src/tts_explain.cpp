#include "tts_explain.h"

#include "for_host_layer.h"

namespace kavi {

namespace {

using tn::Outcome;
using tn::ReadingRule;
using tn::SectionDispatcher;
using tn::SectionWindow;

const char* name_of(ReadingRule rule) {
    switch (rule) {
        case ReadingRule::word: return "word";
        case ReadingRule::capital_letters: return "word in capitals";
        case ReadingRule::month: return "month";
        case ReadingRule::telephone_label: return "telephone label";
        case ReadingRule::telephone_number: return "telephone number";
        case ReadingRule::separated_number: return "number with separators";
        case ReadingRule::ordinal: return "ordinal";
        case ReadingRule::date: return "date";
        case ReadingRule::fraction: return "fraction";
        case ReadingRule::money: return "dollars and cents";
        case ReadingRule::decimal: return "decimal";
        case ReadingRule::clock_time: return "clock time";
        case ReadingRule::year: return "year";
        case ReadingRule::ordinal_day: return "ordinal day";
        case ReadingRule::cardinal: return "cardinal";
        case ReadingRule::markup_tag: return "markup";
        case ReadingRule::bracket: return "bracket or country code";
        case ReadingRule::plus_sign: return "plus sign or country code";
        case ReadingRule::contraction: return "contraction";
        case ReadingRule::mark: return "mark";
        case ReadingRule::silent: break;
    }
    return "not spoken";
}

const char* name_of(const SectionDispatcher& step, std::string_view written) {
    if (step.outcome() == Outcome::full) return "output full";
    const bool incomplete = step.outcome() == Outcome::ended && written.empty();
    return incomplete ? "incomplete, not read" : name_of(step.rule());
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
        ExplainedRun run = {static_cast<std::size_t>(begin - sentence.c_str()), {}, {}, nullptr};
        for (const Section* s = dispatcher.first(); s != nullptr; s = s->m_pnext) {
            run.sections.emplace_back(SectionWindow::source(s));
            if (s == dispatcher.last()) break;
        }
        run.reading = speakable + dispatcher.output_before();
        run.rule = name_of(dispatcher, run.reading);
        runs.push_back(std::move(run));
    }
    return runs;
}

std::vector<ExplainedRun> explain_abbreviations(const HostSentence& sentence,
                                                std::string_view text) {
    std::vector<ExplainedRun> runs;
    for (std::size_t i = 0; i < sentence.n_expansions; ++i) {
        const Expansion& e = sentence.expansions[i];
        runs.push_back({e.at,
                        {std::string(text.substr(e.offset, e.length))},
                        std::string(sentence.normalized.substr(e.at, e.length_there)),
                        "abbreviation"});
    }
    return runs;
}

}  // namespace kavi

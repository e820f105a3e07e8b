#include "tts_explain.h"

#include <algorithm>
#include <utility>

#include "for_host_layer.h"
#include "sentence_source.h"

namespace kavi {

namespace {

using tn::Outcome;
using tn::ReadingRule;
using tn::ReadingStep;

struct RuleName {
    ReadingRule rule;
    std::string_view name;
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

std::string_view name_of(const ReadingStep& step, bool is_written) {
    if (step.outcome == Outcome::full) return "output full";
    const bool incomplete = step.outcome == Outcome::ended && !is_written;
    return incomplete ? "incomplete, not read" : RULE_NAMES[static_cast<int>(step.rule)].name;
}

// Two views of one text, the second directly after the first.
std::string_view joined(std::string_view first, std::string_view second) {
    return {first.data(), first.size() + second.size()};
}

// Whether the run is bytes outside ASCII and `section` goes on with a character of theirs.
bool continues_character(const ExplainedRun& run, std::string_view section) {
    constexpr unsigned CONTINUATION = 0x80;
    constexpr unsigned CONTINUATION_MASK = 0xC0;
    return (static_cast<unsigned char>(section[0]) & CONTINUATION_MASK) == CONTINUATION &&
           static_cast<unsigned char>(run.sections.back().back()) >= CONTINUATION;
}

// Adds the sections of a step to a run.
void add_sections(const ReadingStep& step, ExplainedRun& run) {
    for (const tn::Token* token = step.first; token != step.end; ++token) {
        const std::string_view section = token->text();
        run.source.length += section.size();
        if (!run.sections.empty() && continues_character(run, section)) {
            run.sections.back() = joined(run.sections.back(), section);
        } else {
            run.sections.push_back(section);
        }
    }
}

// Makes runs of the steps by which a sentence is read to `output`.
template <typename OnRun>
class RunsOfSentence {
  public:
    RunsOfSentence(const char* sentence, tn::BoundedText& output, OnRun& on_run)
        : sentence_(sentence), output_(output), on_run_(on_run) {}

    void add_step(const ReadingStep& step) {
        if (run_.sections.empty() || !continues_character(run_, step.first->text())) {
            end();
            begin(step);
        }
        add_sections(step, run_);
        read_to_ = static_cast<std::size_t>(output_.length());
        run_.reading = {output_.text() + run_.reading_at, read_to_ - run_.reading_at};
    }

    void end() {
        if (!run_.sections.empty()) on_run_(run_);
    }

  private:
    void begin(const ReadingStep& step) {
        run_.source = {static_cast<std::size_t>(step.first->begin - sentence_), 0};
        run_.sections.clear();
        run_.reading_at = read_to_;
        run_.rule = name_of(step, static_cast<std::size_t>(output_.length()) > read_to_);
        run_.is_word = step.rule == ReadingRule::word;
    }

    const char* sentence_;
    tn::BoundedText& output_;
    OnRun& on_run_;
    ExplainedRun run_ = {};
    std::size_t read_to_ = 0;  // of the output, before the step
};

// Calls `on_run` with each run of a sentence, which reads to `speakable`, SZ_TEXT_MAX_LEN bytes. It
// may take what the run holds, and that is good as long as these two are.
template <typename OnRun>
void walk(const char* sentence, char* speakable, OnRun on_run) {
    speakable[0] = '\0';
    tn::BoundedText output(speakable, SZ_TEXT_MAX_LEN);
    RunsOfSentence runs(sentence, output, on_run);
    const tn::ReadingObserver observer = {
        nullptr,  // there is no plain text: all is read step by step
        [](void* context, const ReadingStep& step) {
            static_cast<RunsOfSentence<OnRun>*>(context)->add_step(step);
        },
        &runs};
    tn::read_step_by_step(sentence, output, observer);
    runs.end();
}

// The runs of a sentence as runs of the text that it was read from.
class RunsOfText {
  public:
    RunsOfText(const HostSentence& sentence, std::string_view text, std::size_t text_begin,
               const RunHandler& on_run)
        : text_(text),
          text_begin_(text_begin),
          on_run_(on_run),
          sources_(sentence.places.pieces()),
          piece_(sentence.places.pieces().data()),
          last_piece_(&sentence.places.pieces().back()) {}

    // The next run of the sentence; takes what it holds.
    void add(ExplainedRun& run) {
        const std::size_t at = run.source.offset;
        if (sources_.is_copied(at, run.source.length)) {  // as most are
            end();
            any_ = false;
            run.source.offset = sources_.copied_from(at);
            on_run_(run);
            return;
        }
        run.source = sources_.source_of(at, run.source.length);
        if (any_ && run.source.length > 0 &&
            run.source.offset < run_.source.offset + run_.source.length) {
            // They share source, as the words of an abbreviation do.
            const std::size_t end = run.source.offset + run.source.length;
            run_.source.length = std::max(run_.source.length, end - run_.source.offset);
            run_.reading = joined(run_.reading, run.reading);
            return;
        }
        end();
        run_.sections.swap(run.sections);
        run_.source = run.source;
        run_.reading = run.reading;
        run_.reading_at = run.reading_at;
        run_.rule = run.rule;
        run_.is_word = run.is_word;
        any_ = true;
        rewrite(at);
    }

    void end() {
        if (any_) on_run_(run_);
    }

  private:
    // The text at offset `at` of the sentence may be the words of a rewriting.
    void rewrite(std::size_t at) {
        while (piece_ != last_piece_ && piece_->at + piece_->length <= at) ++piece_;
        const RuleId& by = piece_->by;
        if (by.name == nullptr) return;
        run_.rule = by.name;
        if (by.file != nullptr) {
            rule_ = by.name + (" " + std::string(by.file) + ":") + std::to_string(by.line_number);
            run_.rule = rule_;
        }
        run_.is_word = false;
        const std::size_t begin = run_.source.offset - std::min(run_.source.offset, text_begin_);
        run_.sections.assign(1, text_.substr(begin, run_.source.length));
    }

    std::string_view text_;
    std::size_t text_begin_;
    const RunHandler& on_run_;
    host::PieceCursor sources_;
    const SourcePiece* piece_;
    const SourcePiece* last_piece_;
    ExplainedRun run_ = {};  // the last one, which the next may go on
    bool any_ = false;
    std::string rule_;  // of that, with the line that says so
};

}  // namespace

void explain(std::string_view normalized, const RunHandler& on_run) {
    char speakable[SZ_TEXT_MAX_LEN];
    walk(std::string(normalized).c_str(), speakable, on_run);
}

void explain(const HostSentence& sentence, std::string_view text, const RunHandler& on_run,
             std::size_t text_begin) {
    char speakable[SZ_TEXT_MAX_LEN];
    RunsOfText runs(sentence, text, text_begin, on_run);
    walk(sentence.normalized.data(), speakable, [&](ExplainedRun& run) { runs.add(run); });
    runs.end();
}

}  // namespace kavi

#include "tts_explain.h"

#include <algorithm>
#include <array>
#include <string>

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

// The rows are indexed by rule.
constexpr bool are_in_order() {
    int index = 0;
    for (const RuleName& row : RULE_NAMES) {
        if (static_cast<int>(row.rule) != index++) return false;
    }
    return index == static_cast<int>(ReadingRule::silent) + 1;
}
static_assert(are_in_order());

// Two views of one text, the second directly after the first.
std::string_view joined(std::string_view first, std::string_view second) {
    return {first.data(), first.size() + second.size()};
}

std::string_view name_of(ReadingRule rule) {
    return RULE_NAMES[static_cast<int>(rule)].name;
}

std::string_view name_of(const ReadingStep& step, bool is_written) {
    if (step.outcome == Outcome::full) return "output full";
    const bool incomplete = step.outcome == Outcome::ended && !is_written;
    return incomplete ? "incomplete, not read" : name_of(step.rule);
}

bool is_outside_ascii(char c) {
    return static_cast<unsigned char>(c) > 0x7f;
}

bool is_continuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

// The rule of each character that is not a letter when it is alone: in plain text, no mark depends
// on what is around it.
std::array<ReadingRule, 256> find_rules_of_marks() {
    std::array<ReadingRule, 256> rules{};
    for (std::size_t i = 1; i < rules.size(); ++i) {
        const char mark[] = {static_cast<char>(i), '\0'};
        if (tn::is_letter(mark[0])) continue;  // the lexicon is not asked
        char speakable[SZ_TEXT_MAX_LEN] = {};
        tn::BoundedText output(speakable, SZ_TEXT_MAX_LEN);
        const tn::ReadingObserver observer = {nullptr,
                                              [](void* rule, const ReadingStep& step) {
                                                  *static_cast<ReadingRule*>(rule) = step.rule;
                                              },
                                              &rules[i]};
        tn::read_step_by_step(mark, output, observer);
    }
    return rules;
}

// The rule of a tag or mark in plain text.
ReadingRule rule_of_mark(std::string_view mark) {
    static const std::array<ReadingRule, 256> rules = find_rules_of_marks();
    return mark.size() > 1 ? ReadingRule::markup_tag : rules[static_cast<unsigned char>(mark[0])];
}

// Observes the reading of a sentence to `speakable`, and calls `on_run` with each run, which may
// change its source.
template <typename OnRun>
class RunsOfSentence {
  public:
    RunsOfSentence(const char* sentence, const char* speakable, OnRun& on_run)
        : sentence_(sentence), speakable_(speakable), next_(sentence), on_run_(on_run) {}

    // Blanks of plain text, which are not observed, may be before a step and before plain text.
    void add_step(const ReadingStep& step) {
        add_blanks(step.first->begin);
        const auto output_length = static_cast<std::size_t>(step.output_length);
        begin(step.first->text(), name_of(step, output_length > read_to_),
              step.rule == ReadingRule::word);
        for (const tn::Token* token = step.first; token != step.end; ++token) {
            add_section(token->text());
        }
        end_reading(output_length);
    }

    // `source` is words with a blank between two, or a tag, or a mark.
    void add_plain_text(std::string_view source, int output_length) {
        add_blanks(source.data());
        if (tn::is_letter(source[0])) {
            add_plain_words(source);
            return;
        }
        begin(source, name_of(rule_of_mark(source)), false);
        add_section(source);
        end_reading(static_cast<std::size_t>(output_length));
    }

    // Blanks of plain text up to `end`.
    void add_blanks(const char* end) {
        if (next_ == end) return;
        hand_over();
        do {
            add_alone({next_, 1}, ReadingRule::silent, 0);
        } while (next_ != end);
    }

    // Calls `on_run` with the open run, if any.
    void hand_over() {
        if (is_open_) on_run_(run_);
        is_open_ = false;
    }

  private:
    // A word in capitals comes by itself.
    void add_plain_words(std::string_view words) {
        hand_over();
        const bool is_in_capitals = std::all_of(words.begin(), words.end(), tn::is_upper);
        const ReadingRule rule = is_in_capitals ? ReadingRule::capital_letters : ReadingRule::word;
        const char* const end = words.data() + words.size();
        for (;;) {
            const char* word_end = next_ + 1;
            while (word_end != end && *word_end != ' ') ++word_end;
            const auto size = static_cast<std::size_t>(word_end - next_);
            add_alone({next_, size}, rule, size + 1);
            if (word_end == end) return;
            add_alone({next_, 1}, ReadingRule::silent, 0);
        }
    }

    // Adds a run of one section whose reading has `read` bytes. No run is open.
    void add_alone(std::string_view section, ReadingRule rule, std::size_t read) {
        run_.sections.resize(1);
        run_.sections[0] = section;
        run_.source = {static_cast<std::size_t>(section.data() - sentence_), section.size()};
        run_.reading = {speakable_ + read_to_, read};
        run_.reading_at = read_to_;
        run_.rule = name_of(rule);
        run_.is_word = rule == ReadingRule::word;
        next_ = section.data() + section.size();
        read_to_ += read;
        on_run_(run_);
    }

    // Opens a run at `section`. The open run goes on if `section` is inside a character of UTF-8.
    void begin(std::string_view section, std::string_view rule, bool is_word) {
        if (is_open_ && is_continuation(section[0])) return;
        hand_over();
        run_.sections.clear();
        run_.source = {static_cast<std::size_t>(section.data() - sentence_), 0};
        run_.reading_at = read_to_;
        run_.rule = rule;
        run_.is_word = is_word;
    }

    void add_section(std::string_view section) {
        const bool is_same_character = !run_.sections.empty() && is_continuation(section[0]) &&
                                       is_outside_ascii(run_.sections.back().back());
        if (is_same_character) {
            run_.sections.back() = joined(run_.sections.back(), section);
        } else {
            run_.sections.push_back(section);
        }
        run_.source.length += section.size();
        next_ = section.data() + section.size();
    }

    // Ends the run unless a character outside ASCII may go on. Then its reading is copied, since
    // the end of the speakable text may still change.
    void end_reading(std::size_t output_length) {
        read_to_ = output_length;
        run_.reading = {speakable_ + run_.reading_at, read_to_ - run_.reading_at};
        is_open_ = true;
        if (is_outside_ascii(next_[-1])) {
            reading_ = run_.reading;
            run_.reading = reading_;
        } else {
            hand_over();
        }
    }

    const char* sentence_;
    const char* speakable_;
    const char* next_;  // where the sentence goes on
    OnRun& on_run_;
    ExplainedRun run_ = {};
    bool is_open_ = false;     // run_ is not handed over yet, since a character may go on
    std::string reading_;      // of run_, if it is open
    std::size_t read_to_ = 0;  // where speakable_ goes on
};

// An observer that passes each reading to `runs`.
template <typename Runs>
tn::ReadingObserver observer_of(Runs& runs) {
    return {
        [](void* context, std::string_view source, int output_length) {
            static_cast<Runs*>(context)->add_plain_text(source, output_length);
        },
        [](void* context, const ReadingStep& step) { static_cast<Runs*>(context)->add_step(step); },
        &runs};
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

    // Adds the next run of the sentence. Its source becomes a range of the text.
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
            reading_ += run.reading;
            return;
        }
        end();
        run_ = run;
        reading_ = run.reading;
        any_ = true;
        rewrite(at);
    }

    void end() {
        if (!any_) return;
        run_.reading = reading_;
        on_run_(run_);
    }

  private:
    // Sets the rule and the section of a run at offset `at` of the sentence, if it has been
    // rewritten.
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
    ExplainedRun run_ = {};  // the last run, if any_: the next may belong to it
    bool any_ = false;
    std::string reading_;  // of run_
    std::string rule_;     // of run_, with file and line
};

}  // namespace

void explain(std::string_view normalized, const RunHandler& on_run) {
    const std::string sentence(normalized);
    char speakable[SZ_TEXT_MAX_LEN];
    speakable[0] = '\0';
    tn::BoundedText output(speakable, SZ_TEXT_MAX_LEN);
    RunsOfSentence runs(sentence.c_str(), speakable, on_run);
    tn::read_step_by_step(sentence.c_str(), output, observer_of(runs));
    runs.hand_over();
}

// Runs are handed over while the sentence is read: characters that are not letters are removed from
// the speakable text only after all of it.
void explain(const HostSentence& sentence, std::string_view text, const RunHandler& on_run,
             std::size_t text_begin) {
    const char* const normalized = sentence.normalized.data();
    char speakable[SZ_TEXT_MAX_LEN];
    speakable[0] = '\0';
    RunsOfText runs_of_text(sentence, text, text_begin, on_run);
    const auto on_run_of_sentence = [&](ExplainedRun& run) { runs_of_text.add(run); };
    RunsOfSentence runs(normalized, speakable, on_run_of_sentence);
    const tn::ReadingObserver observer = observer_of(runs);
    tn::tokenize(normalized, speakable, &observer);
    runs.add_blanks(normalized + sentence.normalized.size());
    runs.hand_over();
    runs_of_text.end();
}

}  // namespace kavi

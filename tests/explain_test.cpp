#include "expect_table.h"
#include "tts_explain.h"

namespace kavi {
namespace {

// Puts the runs that it is called with together to `text`.
auto append_to(std::string& text) {
    return [&text, any = false](const ExplainedRun& run) mutable {
        text += (any ? " " : "") + std::to_string(run.source.offset);
        any = true;
        for (const std::string_view section : run.sections) ((text += '[') += section) += ']';
        ((((text += run.reading) += '(') += run.rule) += ')');
    };
}

TEST(Explain, RunsAsInTheTable) {
    expect_table("explanations", [](const std::string& sentence) {
        std::string runs;
        explain(sentence, append_to(runs));
        return TableRow{sentence, runs};
    });
}

TEST(Explain, RunsTileTheSentenceAsItStands) {
    for (const char* table : {"explanations", "marks", "money", "clock_times", "tags", "dates"}) {
        for (const TableRow& row : read_table(table)) {
            std::string sections;
            explain(row[0], [&](const ExplainedRun& run) {
                EXPECT_EQ(run.source.offset, sections.size()) << row[0];
                for (const std::string_view section : run.sections) sections += section;
                EXPECT_EQ(run.source.offset + run.source.length, sections.size()) << row[0];
                EXPECT_EQ(run.is_word, run.rule == "word") << row[0];
            });
            EXPECT_EQ(sections, row[0]);
        }
    }
}

TEST(Explain, RunsStandInTheTextAsInTheTable) {
    expect_table("explained_texts", [](const std::string& text) {
        std::string runs;
        TtsHost().read(
            text,
            [&](const HostSentence& sentence) {
                explain(sentence, text, append_to(runs));
                runs += '|';
                return true;
            },
            nullptr);
        return TableRow{text, runs};
    });
}

TEST(Explain, PlainTextAtOnceHasTheRunsOfItsSteps) {
    for (const char* table : {"explanations", "marks", "tags", "telephone", "words"}) {
        for (const TableRow& row : read_table(table)) {
            TtsHost().read(
                row[0],
                [&](const HostSentence& sentence) {
                    if (sentence.normalized != row[0]) return false;  // with other sources
                    std::string at_once;
                    std::string steps;
                    explain(sentence, row[0], append_to(at_once));
                    explain(row[0], append_to(steps));
                    EXPECT_EQ(at_once, steps);
                    return true;
                },
                nullptr);
        }
    }
}

TEST(Explain, StopsWhereTheOutputIsFull) {
    std::string last;
    int n = 0;
    const auto take = [&](const ExplainedRun& run) {
        last = run.rule;
        ++n;
    };
    explain("", take);
    EXPECT_EQ(n, 0);
    explain(std::string(1000, '?'), take);
    EXPECT_EQ(n, 410);  // ten characters each
    EXPECT_EQ(last, "output full");
}

}  // namespace
}  // namespace kavi

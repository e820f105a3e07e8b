#include "expect_table.h"
#include "tts_explain.h"

namespace kavi {
namespace {

std::string to_text(const std::vector<ExplainedRun>& runs) {
    std::string text;
    for (const ExplainedRun& run : runs) {
        text += (text.empty() ? "" : " ") + std::to_string(run.source.offset);
        for (const std::string& section : run.sections) text += "[" + section + "]";
        text += run.reading + "(" + run.rule + ")";
    }
    return text;
}

TEST(Explain, RunsAsInTheTable) {
    expect_table("explanations", [](const std::string& sentence) {
        return TableRow{sentence, to_text(explain(sentence))};
    });
}

TEST(Explain, RunsTileTheSentenceAsItStands) {
    for (const char* table : {"explanations", "marks", "money", "clock_times", "tags", "dates"}) {
        for (const TableRow& row : read_table(table)) {
            std::string sections;
            for (const ExplainedRun& run : explain(row[0])) {
                EXPECT_EQ(run.source.offset, sections.size()) << row[0];
                for (const std::string& section : run.sections) sections += section;
                EXPECT_EQ(run.source.offset + run.source.length, sections.size()) << row[0];
            }
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
                runs += to_text(explain(sentence, text)) + "|";
                return true;
            },
            nullptr);
        return TableRow{text, runs};
    });
}

TEST(Explain, StopsWhereTheOutputIsFull) {
    EXPECT_TRUE(explain("").empty());
    const std::vector<ExplainedRun> runs = explain(std::string(1000, '?'));
    EXPECT_EQ(runs.size(), 410U);  // ten characters each
    EXPECT_EQ(runs.back().rule, "output full");
}

}  // namespace
}  // namespace kavi

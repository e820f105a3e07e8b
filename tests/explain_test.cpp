#include "expect_table.h"
#include "tts_explain.h"

namespace kavi {
namespace {

std::string to_text(const std::vector<ExplainedRun>& runs) {
    std::string text;
    for (const ExplainedRun& run : runs) {
        text += (text.empty() ? "" : " ") + std::to_string(run.at);
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
                EXPECT_EQ(run.at, sections.size()) << row[0];
                for (const std::string& section : run.sections) sections += section;
            }
            EXPECT_EQ(sections, row[0]);
        }
    }
}

TEST(Explain, AbbreviationsAsInTheTable) {
    for (const TableRow& row : read_table("explained_abbreviations")) {
        std::string abbreviations;
        TtsHost().read(
            row[0],
            [&](const HostSentence& sentence) {
                abbreviations += to_text(explain_abbreviations(sentence, row[0])) + "|";
                return true;
            },
            nullptr);
        EXPECT_EQ(abbreviations, row[1]) << row[0];
    }
}

TEST(Explain, StopsWhereTheOutputIsFull) {
    EXPECT_TRUE(explain("").empty());
    const std::vector<ExplainedRun> runs = explain(std::string(1000, '?'));
    EXPECT_EQ(runs.size(), 410U);  // ten characters each
    EXPECT_STREQ(runs.back().rule, "output full");
}

}  // namespace
}  // namespace kavi

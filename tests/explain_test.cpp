#include "expect_table.h"
#include "refused_malloc.h"
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
    TtsExplainer explainer;
    expect_table("explanations", [&](const std::string& sentence) {
        return TableRow{sentence, to_text(explainer.explain(sentence))};
    });
}

TEST(Explain, AbbreviationsAsInTheTable) {
    for (const TableRow& row : read_table("explained_abbreviations")) {
        EXPECT_EQ(to_text(TtsExplainer::explain_abbreviations(row[0], row[1])), row[2]) << row[0];
    }
}

TEST(Explain, StopsWhereTheOutputOrTheSystemIsFull) {
    const std::vector<ExplainedRun> runs = TtsExplainer().explain(std::string(1000, '?'));
    EXPECT_EQ(runs.size(), 410U);  // ten characters each
    EXPECT_STREQ(runs.back().rule, "output full");
    TtsExplainer explainer;
    const RefusedMalloc refused;
    EXPECT_TRUE(explainer.explain("word").empty());
}

}  // namespace
}  // namespace kavi

#include <map>

#include "engine_peer.h"
#include "expect_table.h"

namespace kavi {
namespace {

using Peer = PostProTnEngPeer;

class Readers : public EngineTest {};

class SentenceTable : public EngineTest, public testing::WithParamInterface<const char*> {};

// Through the dispatcher: a wrong blank, a wrong consumed section or a lost tag shows.
TEST_P(SentenceTable, IsReadAsWritten) {
    expect_table(GetParam(), [this](const std::string& sentence) {
        return TableRow{sentence, tokenize(sentence)};
    });
}

INSTANTIATE_TEST_SUITE_P(All, SentenceTable,
                         testing::Values("telephone", "dates", "amounts", "money", "clock_times",
                                         "number_tokens", "marks", "plain_numbers", "symbols",
                                         "tags"),
                         [](const auto& table) { return std::string(table.param); });

TEST_F(Readers, TestsOfPatterns) {
    const std::map<std::string, Peer::SectionTest> decides = {
        {"telephone", Peer::phone_number_decide}, {"date", Peer::data_decide},
        {"fraction", Peer::fraction_decide},      {"decimal", Peer::decimal_decide},
        {"money", Peer::currency_decide},         {"time", Peer::time_decide}};
    for (const TableRow& row : read_table("pattern_tests")) {
        const int answer =
            row[0] == "month" ? test(Peer::month_def, row[1]) : test(decides.at(row[0]), row[1]);
        EXPECT_EQ(std::to_string(answer), row[2]) << row[0] << ": " << row[1];
    }
}

TEST_F(Readers, WithoutAPattern) {
    EXPECT_EQ(call(Peer::month_read, "Sep"), "Sep");
    char number[] = "10";
    char longer_than_a_mark[] = ":x";
    Section* head = nullptr;
    EXPECT_EQ(engine.add_section(number, head), 0);
    EXPECT_EQ(engine.add_section(longer_than_a_mark, head), 0);
    EXPECT_EQ((engine.*Peer::time_decide)(head), 0);
    release(head);
    EXPECT_EQ(call(Peer::month_read, "05"), "May");
    Section lone = {"10", 5, nullptr, nullptr};
    char target[WORD_MAX_LEN] = {};
    EXPECT_EQ((engine.*Peer::time_number)(&lone, target), nullptr);
}

TEST_F(Readers, LongReadingsAreCutAfterAWholeWord) {
    for (const char* before : {"Tel.", "3."}) {
        const std::string reading = tokenize(before + std::string(100, '7') + "-x");
        EXPECT_NE(reading.find("seven seven"), std::string::npos);
        EXPECT_EQ(reading.substr(reading.rfind("seven")).substr(0, 6), "seven ");
        EXPECT_EQ(reading.back(), 'x');
    }
    const std::string tag = "<punc=" + std::string(300, 'x') + " " + std::string(180, 'x') +
                            ">";  // not broken: left out
    EXPECT_EQ(tokenize("1,234," + tag), " one  million two hundred  and thirty four  thousand");
}

}  // namespace
}  // namespace kavi

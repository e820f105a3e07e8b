#include "engine_peer.h"
#include "table.h"

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
    const auto expect = [this](Peer::SectionTest decide,
                               std::vector<std::pair<const char*, int>> rows) {
        for (const auto& [text, answer] : rows) EXPECT_EQ(test(decide, text), answer) << text;
    };
    expect(Peer::phone_number_decide, {{"5", 1},
                                       {"(", 1},
                                       {"-", 1},
                                       {" ", 1},
                                       {"a", 0},
                                       {")", 0},
                                       {"+", 0},
                                       {".", 0},
                                       {"\t", 0},
                                       {"", 0}});
    expect(Peer::data_decide, {{"3/1/2020", 1},
                               {"3-1-2020", 0},
                               {"3/1", 0},
                               {"3/1/", 0},
                               {"3/a/2020", 0},
                               {"3.1/2020", 0}});
    expect(Peer::currency_decide,
           {{"5$", 1}, {"5.50$", 1}, {"1,000.5$", 1}, {"5 $", 0}, {"5", 0}, {"5a$", 0}, {"", 0}});
    expect(Peer::time_decide, {{"10", 0},
                               {"10 :", 0},
                               {"10:", 1},
                               {"10:ab", 1},
                               {"10:30", 1},
                               {"10:30:", 2},
                               {"10:30'", 2},
                               {"10:30-", 1}});
    for (const char* yes : {"9", "09", "12", "Sept", "September"})
        EXPECT_EQ(test(Peer::month_def, yes), 1) << yes;
    for (const char* no : {"13", "00", "Sep", "sept", "JAN", "", "1a"})
        EXPECT_EQ(test(Peer::month_def, no), 0) << no;
}

TEST_F(Readers, WithoutAPattern) {
    EXPECT_EQ(call(Peer::month_read, "Sep"), "Sep");
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
}

}  // namespace
}  // namespace kavi

#include "engine_peer.h"
#include "expect_table.h"

namespace kavi {
namespace {

using Peer = PostProTnEngPeer;

class Numbers : public EngineTest {
  protected:
    void expect(const char* table, Peer::Text read, const std::string& held_before = "") {
        expect_table(table, [&](const std::string& digits) {
            return TableRow{digits, call(read, digits, held_before)};
        });
    }
};

TEST_F(Numbers, AreReadByTheirTables) {
    expect("cardinals", Peer::number_read);
    expect("ordinals", Peer::str_turn);
    expect("years", Peer::year_read);
    expect("digit_strings", Peer::number_to_string, "replaced");
}

TEST_F(Numbers, AreAppendedToWhatTheTargetHolds) {
    EXPECT_EQ(call(Peer::number_read, "7", "abc"), "abc seven ");
    EXPECT_EQ(call(Peer::number_to_normal, "", "x"), "x");
    EXPECT_EQ(call(Peer::number_to_normal, "907"), "nine zero seven ");
    EXPECT_EQ(call(Peer::number_to_normal, "3.5"), "three   five ");
    char four_digits[] = "1000";
    char target[WORD_MAX_LEN] = {};
    EXPECT_EQ((engine.*Peer::str_turn)(four_digits, target), nullptr);
    EXPECT_EQ((engine.*Peer::str_turn)(four_digits + 3, target), target);
    EXPECT_STREQ(target, "  ");
}

TEST_F(Numbers, DigitByDigitIsCutAfterTheLastWholeWord) {
    const std::string reading = call(Peer::number_to_normal, std::string(100, '7'));
    EXPECT_EQ(reading.size(), 6 * 83 - 1U);
    EXPECT_EQ(reading.substr(reading.size() - 11), "seven seven");
    EXPECT_EQ(call(Peer::number_to_normal, std::string(125, '1')).size(), 499U);
    // The 499 characters end inside "seven", and the short word after it must not slip in.
    const std::string ones = call(Peer::number_to_normal, std::string(124, '1') + "71");
    EXPECT_EQ(ones.substr(ones.size() - 7), "one one");
}

TEST_F(Numbers, DigitTest) {
    for (const char* yes : {"", "7", "007"}) EXPECT_EQ(test(Peer::number_def, yes), 1) << yes;
    for (const char* no : {"a", "1a", "a1", "1x2", " ", "$", "\xb2"}) {
        EXPECT_EQ(test(Peer::number_def, no), 0) << no;
    }
}

}  // namespace
}  // namespace kavi

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

TEST_F(Numbers, AreAppendedAsInTheTable) {
    for (const TableRow& row : read_table("appended_numbers")) {
        const Peer::Text read = row[0] == "digits" ? Peer::number_to_normal : Peer::number_read;
        EXPECT_EQ(call(read, row[2], row[1]), row[3]);
    }
}

TEST_F(Numbers, OrdinalOfMoreThanThreeDigitsIsNone) {
    char four_digits[] = "1000";
    char target[WORD_MAX_LEN] = {};
    EXPECT_EQ((engine.*Peer::str_turn)(four_digits, target), nullptr);
    EXPECT_EQ((engine.*Peer::str_turn)(four_digits + 3, target), target);
    EXPECT_STREQ(target, "  ");
}

TEST_F(Numbers, DigitTestAsInTheTable) {
    expect_table("digit_test", [this](const std::string& text) {
        return TableRow{text, std::to_string(test(Peer::number_def, text))};
    });
}

}  // namespace
}  // namespace kavi

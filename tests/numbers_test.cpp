#include "engine_peer.h"

namespace kavi {
namespace {

using Peer = PostProTnEngPeer;

class Numbers : public EngineTest {};

struct Row {
    const char* source;
    const char* reading;
};

TEST_F(Numbers, CardinalOfThreeDigits) {
    const Row rows[] = {
        {"7", " seven "},
        {"0", "  "},
        {"000", "  "},
        {"05", " five "},
        {"10", " ten "},
        {"13", " thirteen "},
        {"20", " twenty  "},
        {"21", " twenty one "},
        {"30", " thirty  "},
        {"070", " seventy  "},
        {"100", "one hundred  "},
        {"101", "one hundred  and one "},
        {"110", "one hundred  and ten "},
        {"120", "one hundred  and twenty  "},
        {"999", "nine hundred  and ninety nine "},
        {"1234", "one hundred  and twenty three "},
        {"", "  "},
        {"x", "  "},  // no word, and nothing read out of bounds
    };
    for (const Row& row : rows)
        EXPECT_EQ(call(Peer::number_read, row.source), row.reading) << row.source;
    EXPECT_EQ(call(Peer::number_read, "7", "abc"), "abc seven ");
}

TEST_F(Numbers, DigitByDigit) {
    EXPECT_EQ(call(Peer::number_to_normal, "907"), "nine zero seven ");
    EXPECT_EQ(call(Peer::number_to_normal, "3.5"), "three   five ");
    EXPECT_EQ(call(Peer::number_to_normal, "", "x"), "x");
}

TEST_F(Numbers, DigitByDigitIsCutAfterTheLastWholeWord) {
    const std::string reading = call(Peer::number_to_normal, std::string(100, '7'));
    EXPECT_EQ(reading.size(), 6 * 83 - 1U);
    EXPECT_EQ(reading.substr(reading.size() - 11), "seven seven");
    // The 499 characters end inside "seven", and the short word behind it must not slip in.
    const std::string ones = call(Peer::number_to_normal, std::string(124, '1') + "71");
    EXPECT_EQ(ones.substr(ones.size() - 7), "one one");
}

TEST_F(Numbers, DigitTest) {
    for (const char* yes : {"", "7", "12", "007"})
        EXPECT_EQ(test(Peer::number_def, yes), 1) << yes;
    for (const char* no : {"a", "1a", "a1", "1x2", " ", ",", "$", "\xb2"}) {
        EXPECT_EQ(test(Peer::number_def, no), 0) << no;
    }
}

TEST_F(Numbers, OrdinalOfThreeDigits) {
    const Row rows[] = {
        {"1", " first "},
        {"4", " forth "},
        {"05", " fifth "},
        {"12", " twelvth "},
        {"19", " ninteenth "},
        {"20", " twentieth "},
        {"21", " twenty first "},
        {"33", " thirty third "},
        {"40", " fortieth "},
        {"0", "  "},
        {"000", "  "},
        {"100", "one hundred  "},
        {"101", "one hundred  and first "},
        {"110", "one hundred  and tenth "},
        {"121", "one hundred  and twenty first "},
        {"150", "one hundred  and fiftieth "},
        {"", ""},
        {"1000", ""},
    };
    for (const Row& row : rows)
        EXPECT_EQ(call(Peer::str_turn, row.source), row.reading) << row.source;
    char four_digits[] = "1000";
    char target[WORD_MAX_LEN] = {};
    EXPECT_EQ((engine.*Peer::str_turn)(four_digits, target), nullptr);
}

TEST_F(Numbers, DigitStringsWithScaleWords) {
    const Row rows[] = {
        {"5", " five "},
        {"1000", " one  thousand   "},
        {"1205", " one  thousand two hundred  and five "},
        {"000123", "   thousand one hundred  and twenty three "},
        {"1000000", " one  million    thousand   "},
        {"1204567", " one  million two hundred  and four  thousand five hundred  and sixty seven "},
        {"1000000000", " one  billion    million    thousand   "},
        {"999999999999",
         "nine hundred  and ninety nine  billion nine hundred  and ninety nine  million nine "
         "hundred  "
         "and ninety nine  thousand nine hundred  and ninety nine "},
        {"1204567890123",  // the digits behind the twelfth are not read
         " one  billion two hundred  and four  million five hundred  and sixty seven  thousand "
         "eight "
         "hundred  and ninety  "},
        {"", ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(call(Peer::number_to_string, row.source, "held before"), row.reading)
            << row.source;
    }
}

}  // namespace
}  // namespace kavi

// Records as SSML: every kind of value, known to the standard and not; elements; what is escaped.

#include <gtest/gtest.h>

#include "table.h"
#include "tts_ssml.h"

namespace kavi {
namespace {

std::string document(const std::string& text, bool has_marks, std::set<std::string>& lost) {
    std::string all;
    TtsHost().read(
        text,
        [&](const HostSentence& sentence) {
            std::string row = ssml(sentence, has_marks, lost);
            if (!row.empty()) row.back() = '|';
            all += row;
            return true;
        },
        nullptr);
    return all;
}

TEST(Ssml, IsAsInTheTable) {
    for (const TableRow& row : read_table("ssml")) {
        std::set<std::string> lost;
        EXPECT_EQ(document(row[0], false, lost), row[1]) << row[0];
        std::string listed;
        for (const std::string& name : lost) listed += (listed.empty() ? "" : " ") + name;
        EXPECT_EQ(listed, row[2]) << row[0];
    }
}

TEST(Ssml, HasAMarkBeforeEachWord) {
    std::set<std::string> lost;
    EXPECT_EQ(document("\xc3\xa9 \"a\" $5 <emphasis=strong>b</emphasis>", true, lost),
              "<s><mark name=\"4-1\"/>\"a\" <mark name=\"7-2\"/>five <mark name=\"7-2\"/>dollars "
              "<emphasis level=\"strong\"><mark name=\"27-1\"/>b</emphasis></s>|");
}

}  // namespace
}  // namespace kavi

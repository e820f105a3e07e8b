#include "engine_peer.h"
#include "expect_table.h"

namespace kavi {
namespace {

class Normalize : public EngineTest {
  protected:
    TableRow cut(const std::string& source) {
        const Cut cut = normalize(source);
        return {source, cut.sentence, cut.rest};
    }
};

TEST_F(Normalize, AsInTheTables) {
    for (const char* table : {"sentences", "blanks", "abbreviations", "markup", "long_texts"}) {
        expect_table(table, [this](const std::string& source) { return cut(source); });
    }
}

TEST_F(Normalize, AbbreviationCalledByItselfAsInTheTable) {
    for (const TableRow& row : read_table("abbreviation_alone")) {
        std::string source = row[1];
        char target[SZ_TEXT_MAX_LEN] = {};
        std::strcpy(target, row[0].c_str());
        char stop = 'u';
        const char* rest = engine.abbreviation(source.data(), target, &stop);
        const std::string taken = rest == nullptr ? "none" : std::to_string(rest - source.data());
        EXPECT_EQ(
            (TableRow{row[0], row[1], taken, target, stop == 'u' ? "" : std::to_string(stop)}),
            row);
    }
}

TEST_F(Normalize, TheRestIsAppendedWholeOrNotAtAll) {
    std::string source = "<poem=x>A! B</poem>";
    char target[SZ_TEXT_MAX_LEN] = {};
    char next[SZ_TEXT_MAX_LEN] = {};
    for (const std::size_t room : {10U, 5U}) {
        const std::string held(SZ_TEXT_MAX_LEN - room, 'h');
        std::strcpy(next, held.c_str());
        EXPECT_EQ(engine.eng_text_normalize(source.data(), target, next), 0);
        EXPECT_EQ(next, held + (room == 10 ? "<poem=x>" : ""));
        target[0] = '\0';
    }
}

}  // namespace
}  // namespace kavi

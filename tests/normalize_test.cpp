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

TEST_F(Normalize, AbbreviationCalledByItself) {
    char source[] = "Dr. Smith";
    char target[SZ_TEXT_MAX_LEN] = "the Dr.";
    char stop = 0;
    EXPECT_EQ(engine.abbreviation(source, target, &stop), source + 3);
    EXPECT_STREQ(target, "the doctor ");
    EXPECT_EQ(stop, 0);
    char other[] = "Hello. x";
    std::strcpy(target, "Hello.");
    EXPECT_EQ(engine.abbreviation(other, target, &stop), nullptr);
    EXPECT_STREQ(target, "Hello");
    EXPECT_EQ(stop, 1);
    for (const char* held :
         {"", "Hello"}) {  // nothing to take off, and no full stop in the stretch
        char none[] = "Hello";
        std::strcpy(target, held);
        EXPECT_EQ(engine.abbreviation(none, target, &stop), nullptr);
        EXPECT_STREQ(target, held);
    }
    // No room for the expansion or its blank: the cut stays, the flag is left alone.
    for (const std::string& held : {std::string(4092, 'x'), std::string(4089, 'x')}) {
        std::strcpy(target, (held + "Dr.").c_str());
        stop = 0;
        EXPECT_EQ(engine.abbreviation(source, target, &stop), nullptr);
        EXPECT_EQ(target, held + (held.size() == 4089 ? "doctor" : ""));
        EXPECT_EQ(stop, 0);
    }
}

// The sentence ends with the full stop of an abbreviation that has no room to be written out.
TEST_F(Normalize, AnExpansionWithoutRoomEndsTheSentence) {
    struct Case {
        std::size_t before;
        const char* end;
        const char* rest;
    };
    for (const Case& c : {Case{4082, "for example ", "b"}, Case{4084, "for example", "g. b"},
                          Case{4085, ".", "g. b"}}) {
        const std::string filled(c.before, 'x');
        const Cut cut = normalize(filled + "e.g. b");
        EXPECT_EQ(cut.sentence, filled + c.end);
        EXPECT_EQ(cut.rest, c.rest);
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

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
    void expect(const TableRow& row) { EXPECT_EQ(cut(row[0]), row); }
};

TEST_F(Normalize, AsInTheTables) {
    for (const char* table : {"sentences", "blanks", "abbreviations", "markup"}) {
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

TEST_F(Normalize, TagsAreBoundedInLengthAndNumber) {
    const std::string ten_open(
        "<poem=0><poem=1><poem=2><poem=3><poem=4><poem=5><poem=6><poem=7><poem=8><poem=9>");
    const std::string longest = "<prosody=" + std::string(189, 'x') + ">";
    const std::string too_long = "<prosody=" + std::string(190, 'x') + ">";
    const std::string long_punc = "<punc=" + std::string(493, 'x') + ">";
    std::string ten_closed;
    for (int i = 0; i < 10; ++i) ten_closed += "</poem>";
    expect({ten_open + "x", ten_open + "x" + ten_closed, ""});
    expect({ten_open + "x<poem=10>y", ten_open + "x", ""});
    expect({longest + "x</prosody>", longest + "x</prosody>", ""});
    expect({too_long + "x</prosody>", too_long, ""});
    expect({long_punc + "x", long_punc + "x", ""});
}

TEST_F(Normalize, LongTextsAreCutAndHandedBack) {
    const std::string letters(4095, 'a');
    Cut cut = normalize(letters);
    EXPECT_EQ(cut.sentence.size(), 4087U);
    EXPECT_EQ(cut.rest.size(), 8U);
    EXPECT_EQ(normalize(letters.substr(0, 4084) + "1,2xyz").sentence.size(), 4087U);
    // A tag that has no room is not broken: it begins the rest.
    const std::string tag = "<punc=" + std::string(90, 'x') + ">";
    cut = normalize(letters.substr(0, 4000) + tag.substr(0, 94) + ">");
    EXPECT_EQ(cut.sentence.size(), 4095U);
    cut = normalize(letters.substr(0, 3998) + tag);
    EXPECT_EQ(cut.sentence.size(), 4095U);
    EXPECT_EQ(cut.rest, "");
    std::string source = letters.substr(0, 3999) + tag;
    char target[SZ_TEXT_MAX_LEN] = {};
    char next[SZ_TEXT_MAX_LEN] = {};
    EXPECT_EQ(engine.eng_text_normalize(source.data(), target, next), 0);
    EXPECT_EQ(target, letters.substr(0, 3999));
    EXPECT_EQ(next, tag);
    // No room to close a span: nothing is handed back.
    cut = normalize("<prosody=x>" + letters.substr(0, 4077) + " yz</prosody>");
    EXPECT_EQ(cut.rest, "");
    // An opening tag without room begins the rest; a closing one ends the pass.
    cut = normalize(letters.substr(0, 4086) + "<poem=abcde>");
    EXPECT_EQ(cut.sentence.size(), 4086U);
    EXPECT_EQ(cut.rest, "<poem=abcde>");
    cut = normalize("<quill_effect=x>" + letters.substr(0, 4070) + "</quill_effect>b");
    EXPECT_EQ(cut.rest, "");
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

#include "engine_peer.h"

namespace kavi {
namespace {

class Normalize : public EngineTest {
  protected:
    struct Row {
        std::string source;
        std::string sentence;
        std::string rest;
    };
    void expect(const std::vector<Row>& rows) {
        for (const Row& row : rows) {
            const Cut cut = normalize(row.source);
            EXPECT_EQ(cut.sentence, row.sentence) << row.source;
            EXPECT_EQ(cut.rest, row.rest) << row.source;
        }
    }
};

TEST_F(Normalize, SentencesEndAtStopCharacters) {
    expect({
        {"", "", ""},
        {"Hello,world", "Hello,", "world"},
        {"a? b", "a?", "b"},
        {"a; b", "a;", "b"},
        {"a! b", "a!", "b"},
        {"a: b", "a:", "b"},
        {"Pi is 3.14 today", "Pi is 3.14 today", ""},
        {"See 10:30, then", "See 10:30,", "then"},
        {"It is 1,000.", "It is 1,000.", ""},
        {"5, 6", "5,", "6"},
        {"7.", "7.", ""},
        {"7:", "7:", ""},
        {"Wait... now", "Wait.", ".. now"},
        {".. now", ".", ". now"},
        {"9<punc=dou>.5", "9<punc=dou>.5", ""},  // a tag between digits does not count
    });
}

TEST_F(Normalize, BlanksAtTheEdges) {
    expect({
        {" a", "a", ""},
        {"\ta", "a", ""},
        {"  a", " a", ""},
        {"a ", "a ", ""},
        {"a  ", "a ", ""},
        {"a   ", "a  ", ""},
        {"a \t", "a ", ""},
        {"a\t ", "a\t ", ""},
        {" ", "", ""},
        {"  ", "", ""},
        {"Hi! \"\r\n", "Hi!", ""},
        {"Hi!\n  Yo", "Hi!", "  Yo"},
        {"Hi! 'Yo'", "Hi!", "Yo'"},
    });
}

TEST_F(Normalize, AbbreviationsAreExpanded) {
    expect({
        {"Dr. Smith is here.", "doctor  Smith is here.", ""},
        {"dr. DR. Dr.", "dr.", "DR. Dr."},  // "Dr." occurs, but not here: so it is no "dr."
        {"DR. x", "doctor  x", ""},
        {"E.G. this", "for example  this", ""},
        {"e.g. this", "for example  this", ""},
        {"10 Ft. high", "10 feet  high", ""},
        {"soft. crab.", "sofeet  craB ", ""},
        {"It was in May. Then", "It was in May  Then", ""},
        {"Sept. 3.5 Sept. x", "September  3.5 September  x", ""},
        {"r. x", "r.", "x"},
        {"Hello. Dr. X", "Hello.", "Dr. X"},
        {"<prosody=rate=1.5>Dr. X</prosody>", "<prosody=rate=1.5>Dr.</prosody>",
         "<prosody=rate=1.5>X</prosody>"},  // a full stop in a tag hides what is behind it
    });
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
    // No room for the expansion: the cut stays, the flag is left alone.
    const std::string full(SZ_TEXT_MAX_LEN - 4, 'x');
    std::strcpy(target, (full + "Dr.").c_str());
    stop = 0;
    EXPECT_EQ(engine.abbreviation(source, target, &stop), nullptr);
    EXPECT_EQ(target, full);
    EXPECT_EQ(stop, 0);
}

TEST_F(Normalize, TagsAreRemovedKeptAndBalanced) {
    const std::string ten_open(
        "<poem=0><poem=1><poem=2><poem=3><poem=4><poem=5><poem=6><poem=7><poem=8><poem=9>");
    const std::string longest = "<prosody=" + std::string(189, 'x') + ">";
    const std::string too_long = "<prosody=" + std::string(190, 'x') + ">";
    const std::string long_punc = "<punc=" + std::string(493, 'x') + ">";
    expect({
        {"<pause=300>Hi", "Hi", ""},
        {"<orgLen=3>Hi", "Hi", ""},
        {"<punc=english>Hi", "Hi", ""},
        {"<punc=dou>Hi", "<punc=dou>Hi", ""},
        {"<breaktime=500>Hi", "<breaktime=500>Hi", ""},
        {"<b>Hi", "<b>Hi", ""},
        {"<poem=x", "<poem=x", ""},  // never closed: no tag
        {"<pause=x. y", "<pause=x.", "y"},
        {"</poem", "</poem", ""},
        {"<prosody=rate=2>Hello, 1,000 people. Bye</prosody>", "<prosody=rate=2>Hello,</prosody>",
         "<prosody=rate=2>1,000 people. Bye</prosody>"},
        {"<prosody=rate=2><emphasis=strong>A! B</emphasis></prosody>",
         "<prosody=rate=2><emphasis=strong>A!</emphasis></prosody>",
         "<prosody=rate=2><emphasis=strong>B</emphasis></prosody>"},
        {"<poem=a>A! <quill_effect=b>B</quill_effect></poem>", "<poem=a>A!</poem>",
         "<poem=a><quill_effect=b>B</quill_effect></poem>"},
        {"<poem=a>A!", "<poem=a>A!</poem>", ""},
        {"<emphasis=strong>Yes</prosody> x", "<emphasis=strong>Yes", ""},
        {"Yes</prosody> x", "Yes", ""},
        {ten_open + "x",
         ten_open + "x</poem></poem></poem></poem></poem></poem></poem></poem></poem>"
                    "</poem>",
         ""},
        {ten_open + "x<poem=10>y", ten_open + "x", ""},
        {longest + "x</prosody>", longest + "x</prosody>", ""},
        {too_long + "x</prosody>", too_long, ""},
        {long_punc + "x", long_punc + "x", ""},
    });
}

TEST_F(Normalize, LongTextsAreCutAndHandedBack) {
    const std::string letters(4095, 'a');
    Cut cut = normalize(letters);
    EXPECT_EQ(cut.sentence.size(), 4087U);
    EXPECT_EQ(cut.rest.size(), 8U);
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
}

TEST_F(Normalize, TheRestIsAppendedWholeOrNotAtAll) {
    std::string source = "<poem=x>A! B</poem>";
    char target[SZ_TEXT_MAX_LEN] = {};
    char next[SZ_TEXT_MAX_LEN] = {};
    const std::string held(SZ_TEXT_MAX_LEN - 10, 'h');
    std::strcpy(next, held.c_str());
    EXPECT_EQ(engine.eng_text_normalize(source.data(), target, next), 0);
    EXPECT_EQ(next, held + "<poem=x>");
}

}  // namespace
}  // namespace kavi

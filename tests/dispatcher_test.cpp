#include "engine_peer.h"

namespace kavi {
namespace {

class Dispatcher : public EngineTest {
  protected:
    struct Row {
        const char* sentence;
        const char* speakable;
    };
    void expect(const std::vector<Row>& rows) {
        for (const Row& row : rows)
            EXPECT_EQ(tokenize(row.sentence), row.speakable) << row.sentence;
    }
};

TEST_F(Dispatcher, PlainNumbersYearsAndDays) {
    expect({
        {"1999", " nineteen  ninety nine"},
        {"1100 9999", " eleven     ninety nine  ninety nine"},
        {"1099", " one  thousand  ninety nine"},
        {"10000", " ten  thousand"},
        {"001999 x", " x"},  // the value is a year, the text is none
        {"I have 5.", "I have  five  <punc=ju>"},
        {"50-13", " fifty   subtract  thirteen"},
        {"5-3", " fifth  subtract  third"},  // a month number two places away makes a day
        {"3-1-2020", " third  subtract  first  subtract  two thousand  twenty"},
        {"0", ""},
    });
}

TEST_F(Dispatcher, Marks) {
    expect({
        {"a, b. c: d; e? f", "a <punc=dou> b <punc=ju> c <punc=mao> d <punc=fen> e <punc=wen>f"},
        {"\"a\" [b] {c} )",
         "<punc=zuoyin> a <punc=zuoyin> <punc=zuokuo>b <punc=youkuo><punc=zuokuo>c "
         "<punc=youkuo><punc=youkuo>"},
        {"13*40", " thirteen  multiply  forty"},
        {"3 * 4", " three  asterisk  four"},
        {"-5 x", "minus  five  x"},
        {"a-b", "a  b"},
        {"40/a / b", " forty   divide a  b"},
        {"50% x", " fifty   percent x"},
        {"% off", " off"},
        {"a=b ~ c#d@e", "a equal b arrive  c  d at e"},
        {"a > b", "a larger b"},
        {"x <", "x smaller"},
        {"x <punc y", "x smaller punc y"},
        {"a < b", "a b"},
        {"a < b < c > d < e", "a  b  c larger d e"},
        {"a ! & \t \xc3\xa9 b", "a b"},
        {"", ""},
    });
}

TEST_F(Dispatcher, TagsPassThrough) {
    expect({
        {"<prosody=rate=2>we have 2 cats,</prosody>",
         "<prosody=rate=2> we have  two  cats <punc=dou> </prosody>"},
        {"<punc=english>a<breaktime=5>b", "<punc=english> a <breaktime=5> b"},
        {"a<pause=3>", "a  pause equal  three  larger"},
    });
}

TEST_F(Dispatcher, FullOutputFailsAndKeepsWhatFits) {
    for (const char* sentence : {"word ", "1999 ", "? ", "( ", "1+", "+1 2 a ", "(1) 2 a ",
                                 "<poem=x>", "~", "Tel.5 a ", "$5 ", "3/4 ", "May "}) {
        std::string text;
        for (int i = 0; i < 500; ++i)
            text += sentence;
        text += std::string(490, 'x') + " " + std::string(490, 'y') + " ";
        text += text;
        char target[SZ_TEXT_MAX_LEN + 1] = {};
        target[SZ_TEXT_MAX_LEN] = 'g';
        std::string source = text;
        EXPECT_EQ(engine.eng_text_tokenize(source.data(), target), -1) << sentence;
        EXPECT_EQ(target[SZ_TEXT_MAX_LEN], 'g');
        EXPECT_GT(std::strlen(target), 3500U);
    }
}

TEST_F(Dispatcher, AppendsToWhatTheTargetHolds) {
    char sentence[] = "b 2";
    char target[SZ_TEXT_MAX_LEN] = "a ";
    EXPECT_EQ(engine.eng_text_tokenize(sentence, target), 0);
    EXPECT_STREQ(target, "a b  two");
}

TEST_F(Dispatcher, WholePipeline) {
    Cut cut = normalize("Dr. Smith paid $5.50 on 3/1/2020, ok?");
    EXPECT_EQ(cut.sentence, "doctor  Smith paid $5.50 on 3/1/2020,");
    EXPECT_EQ(cut.rest, "ok?");
    EXPECT_EQ(
        tokenize(cut.sentence),
        "doctor Smith paid  five dollars  fifty  cents  on  the  third  of January  two thousand  "
        "twenty   <punc=dou>");
}

}  // namespace
}  // namespace kavi

#include "engine_peer.h"

namespace kavi {
namespace {

class Dispatcher : public EngineTest {};

TEST_F(Dispatcher, FullOutputFailsAndKeepsWhatFits) {
    for (const char* sentence : {"word ", "1999 ", "? ", "( ", "1+", "+1 2 a ", "(1) 2 a ",
                                 "<poem=x>", "~", "Tel.5 a ", "$5 ", "3/4 ", "May "}) {
        std::string text;
        for (int i = 0; i < 500; ++i) text += sentence;
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

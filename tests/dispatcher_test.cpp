#include "engine_peer.h"
#include "table.h"

namespace kavi {
namespace {

class Dispatcher : public EngineTest {};

TEST_F(Dispatcher, FullOutputFailsAndKeepsWhatFits) {
    for (const char* sentence :
         {"word ",  "1999 ",    "? ",     "'s ", "NASA ",   "Tel ",     "<punc ",
          "a b c ", "B",        "( ",     "1+",  "+1 2 a ", "(1) 2 a ", "<poem=x>",
          "~",      "Tel.5 a ", "Tel.a ", "$5 ", "3/4 ",    "May "}) {
        std::string text;
        while (text.size() < 4200) text += sentence;
        // Whatever is appended last, some lengths before it leave no room for it.
        for (std::size_t before = 0; before < 40; ++before) {
            std::string source = std::string(before, 'x') + " " + text;
            char target[SZ_TEXT_MAX_LEN + 1];
            std::memset(target, 'g', sizeof target);
            target[0] = '\0';
            EXPECT_EQ(engine.eng_text_tokenize(source.data(), target), -1) << sentence;
            ASSERT_NE(std::memchr(target, '\0', SZ_TEXT_MAX_LEN), nullptr) << sentence;
            EXPECT_EQ(target[SZ_TEXT_MAX_LEN], 'g');
            EXPECT_GT(std::strlen(target), 3500U);
            char by_sections[SZ_TEXT_MAX_LEN] = {};
            Section* head = nullptr;
            EXPECT_EQ(engine.text_to_queue(source.data(), head), 0);
            EXPECT_EQ(engine.section_process(head, by_sections), -1) << sentence;
            release(head);
            EXPECT_STREQ(by_sections, target) << sentence;
        }
    }
}

TEST_F(Dispatcher, AWordNeedsRoomForItsBlank) {
    for (const auto& [room, result] : {std::pair(3, -1), std::pair(4, -1), std::pair(5, 0)}) {
        char word[] = "word";
        char target[SZ_TEXT_MAX_LEN] = {};
        std::memset(target, 'x', static_cast<std::size_t>(SZ_TEXT_MAX_LEN - 1 - room));
        EXPECT_EQ(engine.eng_text_tokenize(word, target), result) << room;
    }
}

TEST_F(Dispatcher, AppendsToWhatTheTargetHolds) {
    char sentence[] = "b 2";
    char target[SZ_TEXT_MAX_LEN] = "a ";
    EXPECT_EQ(engine.eng_text_tokenize(sentence, target), 0);
    EXPECT_STREQ(target, "a b  two");
    char plain[] = "b c";
    EXPECT_EQ(engine.eng_text_tokenize(plain, target), 0);
    EXPECT_STREQ(target, "a b  twob c");
    char irregular[SZ_TEXT_MAX_LEN] = "a-1";
    EXPECT_EQ(engine.eng_text_tokenize(plain, irregular), 0);
    EXPECT_STREQ(irregular, "a  b c");
    std::string full(SZ_TEXT_MAX_LEN, 'x');  // no terminator, no room
    char blank[] = " ";
    for (char* text : {sentence, plain, blank}) {
        EXPECT_EQ(engine.eng_text_tokenize(text, full.data()), -1);
        EXPECT_EQ(full, std::string(SZ_TEXT_MAX_LEN, 'x'));
    }
}

TEST_F(Dispatcher, ReadsAQueueAsFarAsItFits) {
    std::string words;
    while (words.size() < SZ_TEXT_MAX_LEN) words += "word ";
    Section* head = nullptr;
    EXPECT_EQ(engine.text_to_queue(words.data(), head), 0);
    char target[SZ_TEXT_MAX_LEN] = {};
    EXPECT_EQ(engine.section_process(head, target), -1);
    EXPECT_EQ(target, words.substr(0, SZ_TEXT_MAX_LEN - 1));
    EXPECT_EQ(engine.section_process(nullptr, target), 0);
    release(head);
}

TEST_F(Dispatcher, ReadsAQueueFromWithinIt) {
    std::string text = "in the May 5";
    Section* head = nullptr;
    ASSERT_EQ(engine.text_to_queue(text.data(), head), 0);
    const Section* month = head->m_pnext->m_pnext->m_pnext->m_pnext;
    for (Section* from : {month->m_pnext, month->m_pnext->m_pnext}) {
        char target[SZ_TEXT_MAX_LEN] = {};
        EXPECT_EQ(engine.section_process(from, target), 0);
        EXPECT_STREQ(target, " fifth  ");
    }
    release(head);
}

// By class and text, as no text has them.
TEST_F(Dispatcher, ReadsQueuesThatOnlyAHostMakes) {
    for (TableRow row : read_table("queues")) {
        const std::string expected = row.back();
        row.pop_back();
        EXPECT_EQ(process(row), expected) << testing::PrintToString(row);
    }
}

TEST_F(Dispatcher, APatternThatEndsTheTextNeedsRoomToo) {
    for (std::string pattern : {"1,234,", "+1 2", "+1 -", "(1)-2"}) {
        for (const auto& [room, result] :
             {std::pair(10, -1), std::pair(12, -1), std::pair(200, 0)}) {
            char target[SZ_TEXT_MAX_LEN] = {};
            std::memset(target, 'x', static_cast<std::size_t>(SZ_TEXT_MAX_LEN - 1 - room));
            EXPECT_EQ(engine.eng_text_tokenize(pattern.data(), target), result) << pattern << room;
        }
    }
}

TEST_F(Dispatcher, AnAmountMayBeTwoSectionsLong) {
    const std::string number(WORD_MAX_LEN, '1');
    EXPECT_NE(tokenize(number + "$").find("dollars"), std::string::npos);
    EXPECT_EQ(tokenize(number).find("dollars"), std::string::npos);
}

// Wherever in the row of tokens it begins.
TEST_F(Dispatcher, APatternIsSeenToItsEnd) {
    const std::string pattern = "(86)-1-2-3-4-5";
    const std::string reading = tokenize(pattern);
    std::string text = pattern;
    for (int n = 0; n < 40; ++n) {
        text.insert(0, "1-");
        const std::string all = tokenize(text);
        EXPECT_EQ(all.substr(all.size() - reading.size()), reading) << text;
    }
}

// A tag far ahead is searched once, and again when it has been passed.
TEST_F(Dispatcher, LooksForDollarsAndGreaterSignsAlongALongQueue) {
    std::string text;
    for (int i = 0; i < 20; ++i) text += "5.5$ 6.5 < 7.7 > a-";
    text += "< 8.5";
    Section* head = nullptr;
    ASSERT_EQ(engine.text_to_queue(text.data(), head), 0);
    char target[SZ_TEXT_MAX_LEN] = {};
    EXPECT_EQ(engine.section_process(head, target), 0);
    EXPECT_EQ(target, tokenize(text) + "  ");
    release(head);
}

TEST_F(Dispatcher, TheFormOfATimeStandsInThePlaceOfItsClass) {
    char sentence[] = "10:30:15";
    Section* head = nullptr;
    ASSERT_EQ(engine.text_to_queue(sentence, head), 0);
    const int form = (engine.*PostProTnEngPeer::time_decide)(head);
    char target[SZ_TEXT_MAX_LEN] = {};
    EXPECT_EQ(engine.section_process(head, target), 0);
    EXPECT_EQ(head->m_nmark, form);
    release(head);
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

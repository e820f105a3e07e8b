#include <map>

#include "engine_peer.h"
#include "expect_table.h"

namespace kavi {
namespace {

using Peer = PostProTnEngPeer;

constexpr const char* SENTENCE_TABLES[] = {
    "telephone",     "dates", "amounts",       "money",   "clock_times",
    "number_tokens", "marks", "plain_numbers", "symbols", "tags"};

class Readers : public EngineTest {
  protected:
    std::string by_all_sections(std::string sentence) {
        Section* head = nullptr;
        EXPECT_EQ(engine.text_to_queue(sentence.data(), head), 0);
        char target[SZ_TEXT_MAX_LEN] = {};
        EXPECT_EQ(engine.section_process(head, target), 0);
        release(head);
        (engine.*Peer::re_regular)(target);
        return target;
    }
};

class SentenceTable : public EngineTest, public testing::WithParamInterface<const char*> {};

// Through the dispatcher: a wrong blank, a wrong consumed section or a lost tag shows.
TEST_P(SentenceTable, IsReadAsWritten) {
    expect_table(GetParam(), [this](const std::string& sentence) {
        return TableRow{sentence, tokenize(sentence)};
    });
}

INSTANTIATE_TEST_SUITE_P(All, SentenceTable, testing::ValuesIn(SENTENCE_TABLES),
                         [](const auto& table) { return std::string(table.param); });

TEST_F(Readers, TestsOfPatterns) {
    const std::map<std::string, Peer::SectionTest> decides = {
        {"telephone", Peer::phone_number_decide}, {"date", Peer::data_decide},
        {"fraction", Peer::fraction_decide},      {"decimal", Peer::decimal_decide},
        {"money", Peer::currency_decide},         {"time", Peer::time_decide}};
    for (const TableRow& row : read_table("pattern_tests")) {
        const int answer =
            row[0] == "month" ? test(Peer::month_def, row[1]) : test(decides.at(row[0]), row[1]);
        EXPECT_EQ(std::to_string(answer), row[2]) << row[0] << ": " << row[1];
    }
}

TEST_F(Readers, AnOrdinalKeepsZerosInThePlaceOfAGroupAfterOthers) {
    for (const auto& [digits, left] : {std::pair("123", "123"), std::pair("1234", "1000")}) {
        std::string sentence = std::string(digits) + "th";
        Section* head = nullptr;
        EXPECT_EQ(engine.text_to_queue(sentence.data(), head), 0);
        char target[WORD_MAX_LEN] = {};
        EXPECT_EQ((engine.*Peer::turn)(head, target), head->m_pnext);
        EXPECT_STREQ(head->sz_char, left);
        release(head);
    }
}

TEST_F(Readers, WhatStandsInTheOutputAlreadyIsCleanedToo) {
    char sentence[] = "a";
    char target[SZ_TEXT_MAX_LEN] = "5";
    EXPECT_EQ(engine.eng_text_tokenize(sentence, target), 0);
    EXPECT_STREQ(target, " a");
}

TEST_F(Readers, WithoutAPattern) {
    EXPECT_EQ(call(Peer::month_read, "Sep"), "Sep");
    char number[] = "10";
    char longer_than_a_mark[] = ":x";
    Section* head = nullptr;
    EXPECT_EQ(engine.add_section(number, head), 0);
    EXPECT_EQ(engine.add_section(longer_than_a_mark, head), 0);
    EXPECT_EQ((engine.*Peer::time_decide)(head), 0);
    release(head);
    EXPECT_EQ(call(Peer::month_read, "05"), "May");
    Section lone = {"10", 5, nullptr, nullptr};
    char target[WORD_MAX_LEN] = {};
    EXPECT_EQ((engine.*Peer::time_number)(&lone, target), nullptr);
}

TEST_F(Readers, EachByItself) {
    const std::map<std::string, Peer::Reader> readers = {
        {"phone_number_read", Peer::phone_number_read},
        {"data_number", Peer::data_number},
        {"fraction_number", Peer::fraction_number},
        {"decimal_number", Peer::decimal_number},
        {"currrency_read", Peer::currrency_read},
        {"str_number", Peer::str_number},
        {"turn", Peer::turn},
        {"time_number", Peer::time_number},
        {"time_number, long", Peer::time_number},
        {"process_plus", Peer::process_plus}};
    for (const TableRow& row : read_table("readers_alone")) {
        std::string text = row[1];
        Section* head = nullptr;
        EXPECT_EQ(engine.text_to_queue(text.data(), head), 0);
        char target[SZ_TEXT_MAX_LEN];
        std::memset(target, 'g', sizeof target);
        target[0] = '\0';
        Section* last = head;
        if (row[0] == "time_number, long") head->m_nmark = 2;
        if (row[0] == "process_bracket") {
            EXPECT_TRUE((engine.*Peer::process_bracket)(last, target));
        } else if (row[0] == "process_upper_case") {
            if ((engine.*Peer::process_upper_case)(head, target) == 0) last = nullptr;
        } else {
            last = (engine.*readers.at(row[0]))(head, target);
        }
        EXPECT_EQ((TableRow{target, last != nullptr ? last->sz_char : ""}),
                  (TableRow{row[2], row[3]}))
            << row[0] << ": " << row[1];
        release(head);
    }
}

TEST_F(Readers, MarksStopWhereTheOutputIsFull) {
    char number[] = "3+4";
    char bracket[] = "(86) 1";
    Section* head = nullptr;
    EXPECT_EQ(engine.text_to_queue(number, head), 0);
    std::string full(SZ_TEXT_MAX_LEN - 1, 'x');
    EXPECT_EQ((engine.*Peer::process_plus)(head->m_pnext, full.data()), nullptr);
    full.resize(full.size() - 4);
    char target[SZ_TEXT_MAX_LEN] = {};
    std::strcpy(target, full.c_str());
    EXPECT_EQ((engine.*Peer::process_plus)(head->m_pnext, target), head->m_pnext);
    EXPECT_EQ(target, full + "add ");
    release(head);
    head = nullptr;
    EXPECT_EQ(engine.text_to_queue(bracket, head), 0);
    Section* last = head;
    EXPECT_FALSE((engine.*Peer::process_bracket)(last, target));
    EXPECT_EQ(last, head);
    char plus[] = "+86 1";
    Section* country = nullptr;
    EXPECT_EQ(engine.text_to_queue(plus, country), 0);
    EXPECT_EQ((engine.*Peer::process_plus)(country, target), nullptr);
    release(country);
    EXPECT_EQ(target, full + "add ");
    char quote[] = "'ll";
    Section* contraction = nullptr;
    EXPECT_EQ(engine.text_to_queue(quote, contraction), 0);
    EXPECT_EQ((engine.*Peer::process_single_quote)(contraction, target), contraction);
    EXPECT_STREQ(contraction->m_pnext->sz_char, "will");
    std::strcpy(contraction->m_pnext->sz_char, "s");
    contraction->m_pnext->sz_char[2] = 'g';
    EXPECT_EQ((engine.*Peer::process_single_quote)(contraction, target), contraction);
    EXPECT_STREQ(contraction->m_pnext->sz_char, "is");
    release(contraction);
    release(head);
}

TEST_F(Readers, LongReadingsAreCutAfterAWholeWord) {
    const std::string held(489, 'x');
    for (std::string time : {"0:0:0", "0:0:a", "0:a:0"}) {  // a word is left to others then
        Section* head = nullptr;
        EXPECT_EQ(engine.text_to_queue(time.data(), head), 0);
        head->m_nmark = 2;  // the long form
        char target[WORD_MAX_LEN] = {};
        std::strcpy(target, held.c_str());
        const Section* last = (engine.*Peer::time_number)(head, target);
        EXPECT_STREQ(last->sz_char, time == "0:0:0" ? "0" : ":") << time;
        EXPECT_EQ(target, held + "   zero");
        release(head);
    }
    for (const char* before : {"Tel.", "3."}) {
        const std::string reading = tokenize(before + std::string(100, '7') + "-x");
        EXPECT_NE(reading.find("seven seven"), std::string::npos);
        EXPECT_EQ(reading.substr(reading.rfind("seven")).substr(0, 6), "seven ");
        EXPECT_EQ(reading.back(), 'x');
        const std::string next = tokenize(before + std::string(100, '7') + " a 5");
        EXPECT_EQ(next.substr(next.rfind(' ')), " five");
    }
    const std::string nearly_full(480, 'x');
    EXPECT_EQ(call(Peer::number_read, "777", nearly_full), nearly_full + "seven hundred  and");
}

// Words are looked at by eight characters.
TEST_F(Readers, TwoBlanksBetweenWordsAreOneWhereverTheyStand) {
    for (std::size_t n = 1; n < 20; ++n) {
        const std::string word(n, 'a');
        EXPECT_EQ(tokenize(word + "  b c"), word + " b c");
        EXPECT_EQ(tokenize(word + "  b c d e f g h"), word + " b c d e f g h");
    }
}

// Patterns that begin in one piece of a sentence and may reach into the next, and all between.
TEST_F(Readers, ByPiecesASentenceIsReadAsByAllItsSections) {
    const std::string long_word(600, 'x');
    std::vector<std::string> sentences = {"5 " + long_word, "5-" + long_word};
    for (const char* table : SENTENCE_TABLES) {
        for (const TableRow& row : read_table(table)) sentences.push_back(row[0]);
    }
    const std::vector<TableRow> joints = read_table("joints");
    for (std::size_t i = 0; i < sentences.size(); ++i) {
        for (const TableRow& joint : joints) {
            const std::string& next = sentences[(i * 7 + joint[0].size()) % sentences.size()];
            for (std::string text : {sentences[i] + joint[0], joint[0] + sentences[i],
                                     sentences[i] + joint[0] + next}) {
                if (text.size() > 1000) continue;  // the queue's output has no room for more
                ASSERT_EQ(tokenize(text), by_all_sections(text)) << text;
            }
        }
    }
}

}  // namespace
}  // namespace kavi

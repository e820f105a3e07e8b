#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <thread>

#include "expect_table.h"
#include "host_reader.h"

namespace kavi {
namespace {

// The words of all records, whatever marks and attributes they have.
std::vector<std::string> words_of(std::string_view text) {
    std::vector<std::string> words;
    TtsHost host;
    EXPECT_TRUE(host.read(
        text,
        [&](const HostSentence& sentence) {
            for (int i = 1; i < sentence.n_records; ++i) {
                words.emplace_back(sentence.records[i].syllable);
            }
        },
        [](const Diagnostic&) {}));
    return words;
}

// A word for every number, without digits and without the end of an abbreviation.
std::string nth_word(std::size_t n) {
    std::string word = "w";
    for (; n > 0; n /= 10) word += "eghijklmop"[n % 10];
    return word;
}

std::string random_text(std::mt19937& random, std::size_t size) {
    static const std::vector<TableRow> pieces = read_table("pieces");
    std::string text;
    while (text.size() < size) text += pieces[random() % pieces.size()][0];
    return text;
}

TEST(Host, ShortTextsComeOutAsByHand) {
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round) {
        std::string text = random_text(random, random() % 4000);
        text.resize(std::min<std::size_t>(text.size(), SZ_TEXT_MAX_LEN - 1));
        const ReadText layer = read_by_layer(text);
        const bool malformed =
            std::any_of(layer.diagnostics.begin(), layer.diagnostics.end(),
                        [](const Diagnostic& d) { return d.finding < Finding::tag_too_long; });
        EXPECT_TRUE(layer.all_read);
        if (malformed) continue;  // by hand, the engine drops the rest
        const ReadText hand = read_by_hand(text);
        ASSERT_EQ(layer.normalized, hand.normalized) << text;
        ASSERT_EQ(layer.speakable, hand.speakable) << text;
        ASSERT_EQ(layer.records, hand.records) << text;
    }
}

TEST(Host, SourcesOfSentencesCoverTheText) {
    const std::string text = "  Dr. X <poem=p>said: \"no!\" \r\n Then</poem> 'left'. ";
    const ReadText read = read_by_layer(text);
    EXPECT_EQ(read.covered, text.size());
    EXPECT_EQ(read.sources, (std::vector<std::string>{"  Dr. X <poem=p>said: \"", "no!\" \r\n",
                                                      " Then</poem> 'left'. "}));
    EXPECT_EQ(read.normalized,
              (std::vector<std::string>{" doctor  X <poem=p>said:</poem>", "<poem=p>no!</poem>",
                                        "<poem=p> Then</poem> 'left'."}));
}

TEST(Host, SourcesCoverWhatIsSilentBetweenSentences) {
    std::string silent;
    while (silent.size() < 6000) silent += "<pause=3>";
    const ReadText read = read_by_layer("a. " + silent + "b!  \r ");
    EXPECT_EQ(read.sources, (std::vector<std::string>{"a. ", silent + "b!  \r"}));
}

TEST(Host, NoWordOfALongTextIsLost) {
    for (const std::size_t every :
         {std::size_t{0}, std::size_t{17}}) {  // a stop every so many words
        std::string text = "<emphasis=strong>";
        std::vector<std::string> expected;
        for (std::size_t n = 0; text.size() < 10'000'000; ++n) {
            expected.push_back(nth_word(n));
            text += expected.back() + (every != 0 && n % every == 0 ? ". " : " ");
        }
        text += "</emphasis>";
        EXPECT_EQ(words_of(text), expected);
    }
}

TEST(Host, LongTextsAreCutAtBlanksAndCarrySpansOn) {
    std::string text = "<poem=p>";
    for (int i = 0; i < 3000; ++i) text += "<prosody=rate=\"2\">ack </prosody>x ";
    for (const std::string& sentence : read_by_layer(text).records) {
        ASSERT_EQ(sentence.substr(0, 20), "|ack(rate=2 poem=p)|");
        ASSERT_EQ(sentence.find_first_not_of("|ack(rte=2 pom)x"), std::string::npos);
    }
    // What grows when it is read: abbreviations, marks, numbers.
    for (const char* piece : {"ack. ", "ack.", ") ", ")", "777777 ", "7:", "\"", "e.g."}) {
        std::string grown;
        while (grown.size() < 20000) grown += piece;
        const ReadText read = read_by_layer(grown);
        EXPECT_TRUE(read.all_read) << piece;
        EXPECT_EQ(read.covered, grown.size()) << piece;
        for (const std::string& speakable : read.speakable) ASSERT_LT(speakable.size(), 4096U);
    }
    std::string many;
    for (int i = 0; i < 4000; ++i) many += "ack. ";
    EXPECT_EQ(words_of(many), std::vector<std::string>(4000, "acknowledge"));
    // No blank at all: words are cut where they are too long for a section.
    const std::vector<std::string> pieces = words_of(std::string(100000, 'x'));
    std::size_t total = 0;
    for (const std::string& piece : pieces) total += piece.size();
    EXPECT_EQ(total, 100000U);
    std::string unbroken;
    for (int i = 0; i < 10000; ++i) unbroken += "word-";
    EXPECT_EQ(words_of(unbroken), std::vector<std::string>(10000, "word"));
}

// The findings of a text as in the table, and the records of all its sentences.
TableRow report(const std::string& text, bool with_records) {
    const ReadText read = read_by_layer(text);
    EXPECT_TRUE(read.all_read) << text;
    std::string findings;
    for (const Diagnostic& d : read.diagnostics) {
        EXPECT_GT(std::strlen(describe(d.finding)), 10U);
        findings +=
            (findings.empty() ? "" : ", ") + std::to_string(d.offset) + " " + code_of(d.finding);
    }
    std::string records;
    for (const std::string& sentence : read.records) records += sentence;
    return {text, findings, with_records ? records : ""};
}

TEST(Host, ReportsWhatTheEnginePassesOver) {
    for (const TableRow& row : read_table("findings")) {
        EXPECT_EQ(report(row[0], !row[2].empty()), row);
    }
}

TEST(Host, ASmallArenaGetsShorterPiecesOrIsReported) {
    const std::string text = "One two three four five six seven eight nine ten. Yes. No.";
    for (const std::string& tight : {text, std::string(300, 'x'), std::string("123456789012.5"),
                                     std::string("<breaktime=12345678901234567890>a")}) {
        for (std::size_t capacity = 1; capacity < 60000; capacity += 16 + capacity / 50) {
            const ReadText read = read_by_layer(tight, capacity);
            const auto refused = [](const Diagnostic& d) {
                return d.finding == Finding::arena_too_small;
            };
            EXPECT_EQ(read.all_read,
                      std::none_of(read.diagnostics.begin(), read.diagnostics.end(), refused));
            EXPECT_TRUE(!read.all_read || read.covered == tight.size());
        }
    }
    EXPECT_EQ(read_by_layer(text, 4000).records,
              (std::vector<std::string>{"|One|two|three|four", "|five|six|seven|eight|nine|ten+ju!",
                                        "|Yes+ju!", "|No+ju!"}));
}

TEST(Host, CutsAnywhereLoseNoWord) {
    // A tag at every place around the end of the buffer.
    for (std::size_t before = 4040; before < 4100; ++before) {
        const std::string text = std::string(before, ' ') + "<poem=\"x y\">a b</poem> c";
        EXPECT_EQ(words_of(text), (std::vector<std::string>{"a", "b", "c"})) << before;
    }
    // Without a blank: between words, between numbers, behind a character of several bytes, behind
    // a tag; and where there is no such place, within the word.
    for (const std::string piece : {"wordword-", "1234567,", "\xc3\xa9", "<poem=p>x</poem>",
                                    "<breaktime=12345678901234567890>"}) {
        std::string text;
        while (text.size() < 9000) text += piece;
        for (const std::size_t capacity : {std::size_t{0}, std::size_t{20000}}) {
            const ReadText read = read_by_layer(text, capacity);
            EXPECT_TRUE(read.all_read) << piece;
            for (const std::string& source : read.sources) {
                EXPECT_TRUE(piece[0] == '<' || source.size() % piece.size() == 0) << piece;
            }
        }
    }
}

// The telephone number takes the closing tag with it, and the chains of the spans then nested are
// too long for the builder.
TEST(Host, WhatTheBuilderRefusesIsCutToo) {
    const std::string open = "<emphasis=" + std::string(150, 'x') + ">";
    const std::string text = open + "(5) 5</emphasis> x " + open + "y</emphasis> z";
    const ReadText read = read_by_layer(text);
    EXPECT_TRUE(read.all_read);
    EXPECT_EQ(read.covered, text.size());
    EXPECT_GT(read.records.size(), 1U);
}

TEST(Host, TwoInTwoThreadsDoNotInterfere) {
    const auto text = [](unsigned seed) {
        std::mt19937 random(seed);
        return random_text(random, 30000);
    };
    const ReadText expected[] = {read_by_layer(text(1)), read_by_layer(text(2))};
    ReadText read[2];
    std::thread first([&] { read[0] = read_by_layer(text(1)); });
    std::thread second([&] { read[1] = read_by_layer(text(2)); });
    first.join();
    second.join();
    for (int i = 0; i < 2; ++i) EXPECT_EQ(read[i].records, expected[i].records);
}

}  // namespace
}  // namespace kavi

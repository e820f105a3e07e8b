#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <stdexcept>

#include "expect_table.h"
#include "host_reader.h"
#include "refused_malloc.h"

namespace kavi {
namespace {

// The words of all records, whatever marks and attributes they have.
std::vector<std::string> words_of(std::string_view text, std::size_t capacity = 0) {
    ReadText read = read_by_layer(text, capacity);
    EXPECT_TRUE(read.all_read);
    return std::move(read.words);
}

// The same on one line: "word*9" for nine in a row.
std::string run_lengths(std::string_view text, std::size_t capacity = 0) {
    const std::vector<std::string> words = words_of(text, capacity);
    std::string line;
    for (auto word = words.begin(); word != words.end();) {
        const auto end = std::find_if(word, words.end(), [&](const auto& w) { return w != *word; });
        line += (line.empty() ? "" : " ") + *word;
        if (end - word > 1) line += "*" + std::to_string(end - word);
        word = end;
    }
    return line;
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
        EXPECT_EQ(layer.fault, "") << text;
        if (malformed) continue;  // by hand, the engine drops the rest
        const ReadText hand = read_by_hand(text);
        ASSERT_EQ(layer.normalized, hand.normalized) << text;
        ASSERT_EQ(layer.speakable, hand.speakable) << text;
        ASSERT_EQ(layer.records, hand.records) << text;
    }
}

TEST(Host, WordsComeFromTheirPlaces) {
    expect_table("places", [](const std::string& text) {
        const ReadText read = read_by_layer(text);
        EXPECT_EQ(read.fault, "") << text;
        std::string places;
        for (const std::string& place : read.places) places += (places.empty() ? "" : " ") + place;
        return TableRow{text, places};
    });
}

TEST(Host, EveryLetterAndDigitOfOrdinarySentencesHasAWord) {
    for (const char* table :
         {"dates", "money", "clock_times", "number_tokens", "words", "symbols"}) {
        for (const TableRow& row : read_table(table)) {
            if (row[0].find('<') != std::string::npos) continue;
            std::string covered = row[0];
            TtsHost().read(
                row[0],
                [&](const HostSentence& sentence) {
                    for (int i = 1; i < sentence.n_records; ++i) {
                        const TextRange place = sentence.places.of_record(i).source;
                        covered.replace(place.offset, place.length, place.length, ' ');
                    }
                    return true;
                },
                [&](const Diagnostic& d) {
                    for (std::size_t at = d.offset; std::isdigit(covered[at]) != 0; ++at) {
                        covered[at] = ' ';  // not read
                    }
                    return true;
                });
            EXPECT_EQ(std::find_if(covered.begin(), covered.end(),
                                   [](char c) { return std::isalnum(c) != 0; }),
                      covered.end())
                << row[0] << "\n"
                << covered;
        }
    }
}

TEST(Host, PlainTextAsInTheTable) {
    expect_table("plain", [](const std::string& text) {
        std::string plain;
        for (const std::string& sentence : read_by_layer(text).plain) plain += sentence + "|";
        return TableRow{text, plain};
    });
}

TEST(Host, NamesOfWhatNoSentenceHas) {
    EXPECT_EQ(pause_name(PAUSE_SYL_FE), "syl");
    EXPECT_EQ(pause_name(static_cast<PAUSE_type>(PAUSE_SYL_FE - 1)), "unknown");
    EXPECT_EQ(punctuation_name(POIE_FE), "POIE");
    EXPECT_EQ(punctuation_name(static_cast<PUNC_type>(POIE_FE + 1)), "unknown");
}

TEST(Host, SourcesOfSentencesAsInTheTable) {
    expect_table("sources", [](const std::string& text) {
        const ReadText read = read_by_layer(text);
        TableRow row{text, "", ""};
        for (const std::string& source : read.sources) row[1] += source + "|";
        for (const std::string& normalized : read.normalized) row[2] += normalized + "|";
        return row;
    });
}

TEST(Host, NoWordOfALongTextIsLost) {
    for (const std::size_t every :
         {std::size_t{0}, std::size_t{17}}) {  // a stop every so many words
        std::string text = "<emphasis=strong>";
        std::vector<std::string> expected;
        for (std::size_t n = 0; text.size() < 1'000'000; ++n) {
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
}

TEST(Host, WordsOfLongTextsAsInTheTable) {
    for (const TableRow& row : read_table("words_of_long_texts")) {
        EXPECT_EQ(run_lengths(row[0]), row[1]);
        for (std::size_t capacity = row[2].empty() ? 12000 : 4000; capacity < 12000;
             capacity += 501) {
            EXPECT_EQ(run_lengths(row[0], capacity), row[1]) << capacity;
        }
    }
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

// Whatever the arena holds, a text is spoken as with a large one, or what is missing is reported.
TEST(Host, ASmallArenaGetsShorterPiecesOrIsReported) {
    const std::string text = "One two three four five six seven eight nine ten. Yes. No.";
    const std::vector<std::string> texts = {text,
                                            std::string(300, 'x'),
                                            "123456789012.5 a",
                                            "<breaktime=12345678901234567890>a",
                                            std::string(30, 'x') + "<pause=1>",
                                            "it is 10:30:15 now",
                                            "+86-10-12345678 a",
                                            "we paid $1,234.50 on 3/1/2020 to NASA, 21st"};
    for (const std::string& tight : texts) {
        const std::vector<std::string> expected = words_of(tight);
        for (std::size_t capacity = 1; capacity < 40000; capacity += 16 + capacity / 50) {
            const ReadText read = read_by_layer(tight, capacity);
            const auto refused = [](const Diagnostic& d) {
                return d.finding == Finding::arena_too_small;
            };
            EXPECT_EQ(read.all_read,
                      std::none_of(read.diagnostics.begin(), read.diagnostics.end(), refused));
            if (!read.all_read) continue;
            EXPECT_EQ(read.covered, tight.size());
            EXPECT_EQ(read.words, expected) << tight << ", " << capacity;
        }
    }
    EXPECT_EQ(read_by_layer(text, 4000).records,
              (std::vector<std::string>{"|One|two|three|four", "|five|six|seven|eight|nine|ten+ju!",
                                        "|Yes+ju!", "|No+ju!"}));
}

TEST(Host, TextThatTheEngineDoesNotStopAtComesOutAsByHand) {
    for (const TableRow& row : read_table("as_by_hand")) {
        const ReadText layer = read_by_layer(row[0]);
        const ReadText hand = read_by_hand(row[0]);
        EXPECT_EQ(layer.normalized, hand.normalized);
        EXPECT_EQ(layer.records, hand.records) << row[0];
        EXPECT_EQ(std::to_string(layer.diagnostics.size()), row[1]) << row[0];
    }
}

TEST(Host, MarkupThatIsNeverClosedCostsNoMoreTheMoreThereIs) {
    std::string text;
    for (int i = 0; i < 300000; ++i) text += i % 3 == 0 ? "<poem=a>" : "<prosody=b>";
    const ReadText read = read_by_layer(text + "x" + std::string(7, ' ') + "</poem></poem>y. z");
    EXPECT_EQ(read.diagnostics.size(), 300000U);  // ten are never closed
    EXPECT_EQ(read.words, (std::vector<std::string>{"x", "y", "z"}));
    // Closed again, however deep: what is left out takes its closing tags with it.
    text = "<poem=a>";
    for (int i = 0; i < 100; ++i) text += "<emphasis=" + std::string(200, 'x') + ">";
    for (int i = 0; i < 40; ++i) text += "<poem=b></poem>";
    for (int i = 0; i < 100; ++i) text += "</emphasis>";
    const ReadText closed = read_by_layer(text + "x</poem> y</poem>");
    // The deepest that is told apart.
    std::string deepest;
    for (int i = 0; i < 64; ++i) deepest += "<emphasis=" + std::string(200, 'x') + ">";
    const ReadText too_deep = read_by_layer(deepest + "<poem=a>x</prosody>y");
    EXPECT_EQ(too_deep.records, (std::vector<std::string>{"|x|y"}));
    EXPECT_EQ(too_deep.diagnostics.size(), 65U);
    EXPECT_EQ(closed.diagnostics.size(), 100U + 40 + 1);
    EXPECT_EQ(closed.records.back(), "|x(poem=a)|y");
}

TEST(Host, AStretchThatIsNotSpokenIsReportedOnceHoweverItIsFed) {
    for (std::size_t before = 16370; before < 16390; ++before) {
        const std::string text = std::string(before, ' ') + "a\xe2\x82\xac\xe2\x82\xac b";
        const ReadText read = read_by_layer(text);
        ASSERT_EQ(read.diagnostics.size(), 1U) << before;
        EXPECT_EQ(read.diagnostics[0].offset, before + 1);
        EXPECT_EQ(read.diagnostics[0].length, 6U);
    }
    EXPECT_TRUE(read_by_layer("a\x7f b").diagnostics.empty());
    const std::string_view longer = "a\xe2\x82\xac\xe2\x82\xac";  // it ends with the text
    EXPECT_EQ(read_by_layer(longer.substr(0, 4)).diagnostics.at(0).length, 3U);
}

TEST(Host, DiagnosticsStandBeforeTheirSentenceInOrder) {
    std::string events;
    TtsHost().read(
        "a</poem> 1234567890123 <x</poem>. b</poem>! c",
        [&](const HostSentence& sentence) {
            events += std::string(sentence.speakable) + "|";
            return true;
        },
        [&](const Diagnostic& d) {
            events += std::to_string(d.offset) + " ";
            return true;
        });
    EXPECT_EQ(events.substr(0, 9), "1 9 23 25");
    EXPECT_NE(events.find("|35 b"), std::string::npos) << events;
}

TEST(Host, HandlersMayBeEmptyThrowOrCallAgain) {
    TtsHost host;
    EXPECT_TRUE(host.read("a</poem> 12345,. b", nullptr, nullptr));
    int sentences = 0;
    const auto again = [&](const auto&) {
        ++sentences;
        EXPECT_FALSE(host.read(
            "x. y", [](const HostSentence&) -> bool { throw 0; }, nullptr));
        return true;
    };
    EXPECT_TRUE(host.read("a</poem>. b", again, again));
    EXPECT_EQ(sentences, 3) << "and the text is read to its end";
    const auto fails = [](const auto&) -> bool { throw std::runtime_error("handler"); };
    EXPECT_THROW(host.read("a. b", fails, nullptr), std::runtime_error);
    EXPECT_THROW(host.read("<poem=p>a</prosody>. b", nullptr, fails), std::runtime_error);
    EXPECT_THROW(host.read("a. b</poem> <poem=q>c</poem></poem>", fails, nullptr),
                 std::runtime_error);
    const ReadText next = read_by_layer(host, "c</prosody>.");
    EXPECT_EQ(next.records, (std::vector<std::string>{"|c+ju!"}));
    ASSERT_EQ(next.diagnostics.size(), 1U);
    EXPECT_EQ(next.diagnostics[0].offset, 1U);
}

TEST(Host, StopsWhenAHandlerSaysSo) {
    TtsHost host;
    int calls = 0;
    const auto second_stops = [&](const auto&) { return ++calls < 2; };
    EXPECT_FALSE(host.read("a. b. c.", second_stops, nullptr));
    EXPECT_EQ(calls, 2);
    calls = 0;
    EXPECT_FALSE(host.read("a</poem></poem></poem>. b", nullptr, second_stops));
    EXPECT_EQ(calls, 2);
    for (const char* text : {"</poem>", "a</poem> 1234567890123", "1234567890123"}) {
        calls = 1;
        EXPECT_FALSE(host.read(text, nullptr, second_stops)) << text;
        EXPECT_EQ(calls, 2);
    }
    EXPECT_TRUE(read_by_layer(host, "a").diagnostics.empty()) << "nothing is left of the last text";
}

TEST(Host, ReadsOnAnArenaThatIsHandedInAndLeavesNothingThere) {
    mem_stack_handle arena = mem_stack_create(0);
    {
        TtsHost host(arena);
        std::size_t in_use = 0;
        const auto look = [&](const HostSentence&) {
            in_use = mem_stack_used(arena);
            return true;
        };
        EXPECT_TRUE(host.read("a b c. d", look, nullptr));
        EXPECT_GT(in_use, 0U);
        EXPECT_EQ(mem_stack_used(arena), 0U);
        host.read(
            "a b c. d", [](const HostSentence&) { return false; }, nullptr);
        EXPECT_EQ(mem_stack_used(arena), 0U);
        EXPECT_ANY_THROW(host.read(
            "a b c. d", [](const HostSentence&) -> bool { throw 0; }, nullptr));
        EXPECT_EQ(mem_stack_used(arena), 0U);
    }
    EXPECT_NE(mem_stack_request_buf(1, MEM_COMMON, arena), nullptr);
    mem_stack_destroy(arena);
}

TEST(Host, ArenaThatIsRefused_Throws) {
    RefusedMalloc refused;
    EXPECT_THROW(TtsHost(), std::bad_alloc);
}

TEST(Host, OneTextLeavesNothingToTheNext) {
    const std::string ten_tags =
        "<poem=\"a\"><poem=b><poem=c><poem=d><poem=e><poem=f><poem=g><poem=h>"
        "<poem=i><poem=j>x";
    std::string deep;
    for (int i = 0; i < 70; ++i) deep += "<poem=" + std::string(200, 'x') + ">";
    for (const std::string& first :
         {std::string("</poem>a </poem>b"), deep,
          "<poem=p>a <emphasis=" + std::string(300, 'x') + ">q. c",
          "<poem=" + std::string(150, 'x') + ">a", std::string(20000, 'a') + "</poem>\xff"}) {
        TtsHost host;
        read_by_layer(host, first);
        host.read(
            "a. </poem>b", [](const HostSentence&) { return false; }, nullptr);
        const ReadText second = read_by_layer(host, "\xff b </poem>" + ten_tags);
        ASSERT_EQ(second.diagnostics.size(), 2U + 10) << first.substr(0, 100);  // never closed
        EXPECT_EQ(second.diagnostics[0].offset, 0U);
        EXPECT_EQ(second.diagnostics[1].finding, Finding::stray_closing_tag);
        EXPECT_EQ(second.diagnostics[1].offset, 4U);
        EXPECT_EQ(second.fault, "");
        EXPECT_EQ(second.places.front(), "b=b");
    }
}

TEST(Host, WhatIsPassedOverBelongsToNoSentence) {
    const std::string text = std::string(60, 'a') + " b c d e f g h i j k l m n o p. q";
    int both = 0;
    for (std::size_t capacity = 500; capacity < 8000; capacity += 100) {
        const ReadText read = read_by_layer(text, capacity);
        EXPECT_EQ(read.fault, "") << capacity;
        both += !read.all_read && !read.words.empty() ? 1 : 0;
    }
    EXPECT_GT(both, 0);
}

TEST(Host, CutsAnywhereLoseNoWord) {
    // The end of the buffer is at every place of the text.
    for (const TableRow& row : read_table("cuts_anywhere")) {
        for (std::size_t before = 0; before < 50; ++before) {
            EXPECT_EQ(run_lengths(row[0] + std::string(before, ' ') + row[1]), row[2]) << before;
        }
    }
    // Without a blank: between words, between numbers, after a character of several bytes, after
    // a tag; and where there is no such place, within the word.
    for (const std::string piece : {"wordword-", "1234567,", "\xc3\xa9\xe2\x82\xac",
                                    "<poem=p>x</poem>", "<breaktime=12345678901234567890>"}) {
        std::string text;
        while (text.size() < 9000) text += piece;
        for (const std::size_t capacity : {std::size_t{0}, std::size_t{20000}}) {
            const ReadText read = read_by_layer(text, capacity);
            EXPECT_TRUE(read.all_read) << piece;
            for (const std::string& source : read.sources) {
                EXPECT_TRUE(piece[0] == '<' || source.size() % piece.size() == 0) << piece;
            }
            for (const std::string& word : read.words) EXPECT_TRUE(piece[0] != '<' || word == "x");
        }
    }
}

TEST(Host, LongSentencesAreCutBeforeACharacterOrATag) {
    std::string euros = "<-";
    for (int i = 0; i < 3000; ++i) euros += "\xe2\x82\xac<";
    for (const std::string& source : read_by_layer(euros + "<orgLen=1>").sources) {
        EXPECT_TRUE(source[0] == '<' || source[0] == '\xe2') << source[0];
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

}  // namespace
}  // namespace kavi

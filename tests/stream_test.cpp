#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

#include "expect_table.h"
#include "host_reader.h"
#include "tts_everyday.h"
#include "tts_stream.h"

namespace kavi {
namespace {

// What handlers are told: for each sentence its plain form and "." or ",", for each finding its
// offset and code.
struct Told {
    std::vector<std::string> lines;
    PlainForm form;

    void add(const HostSentence& sentence, std::string_view text, std::size_t text_begin) {
        form.read(sentence, text, text_begin);
        std::string line = std::to_string(sentence.source.offset) + "+" +
                           std::to_string(sentence.source.length) + " ";
        line += std::string(form.all()) + (sentence.ends_sentence ? "|." : "|,");
        for (int i = 1; i < sentence.n_records; ++i) {
            line += " " + std::to_string(sentence.places.of_record(i).source.offset);
        }
        lines.push_back(line);
    }
    void add(const Diagnostic& found) {
        lines.push_back(std::to_string(found.offset) + "+" + std::to_string(found.length) + " " +
                        code_of(found.finding));
    }
};

// A stream on a host of its own.
struct Stream {
    explicit Stream(const TextRewriter* reads_by = nullptr, std::size_t capacity = 0)
        : rewriter(reads_by), host(capacity) {}

    const TextRewriter* rewriter;
    TtsHost host;
    Told told;
    int forget_at = -1;  // in the handler of that line
    int stop_at = -1;
    TtsStream stream{with_rewriter(),
                     [this](const HostSentence& sentence) {
                         told.add(sentence, stream.text(), stream.text_begin());
                         return goes_on();
                     },
                     [this](const Diagnostic& found) {
                         told.add(found);
                         return goes_on();
                     }};

  private:
    TtsHost& with_rewriter() {
        host.rewrite_by(rewriter);
        return host;
    }
    bool goes_on() {
        EXPECT_FALSE(stream.add("never. said. "));
        EXPECT_FALSE(stream.end());
        const int line = static_cast<int>(told.lines.size());
        if (line == forget_at) stream.forget();
        return line != stop_at;
    }
};

Told read_at_once(const TextRewriter* rewriter, std::string_view text, std::size_t capacity = 0) {
    TtsHost host(capacity);
    host.rewrite_by(rewriter);
    Told told;
    host.read(
        text,
        [&](const HostSentence& sentence) {
            told.add(sentence, text, 0);
            return true;
        },
        [&](const Diagnostic& found) {
            told.add(found);
            return true;
        });
    return told;
}

const Everyday& everyday() {
    static const Everyday all = [] {
        static Lexicon lexicon;
        std::string error;
        lexicon.add("user", "Acme Corp\tacme corporation\nkHz\tkilohertz", error);
        Everyday made(&lexicon);
        made.set_all(true);
        return made;
    }();
    return all;
}

TEST(Stream, HoweverATextIsCut_IsToldAsAtOnce) {
    static const std::vector<TableRow> pieces = read_table("pieces");
    std::mt19937 random(11);
    for (int round = 0; round < 120; ++round) {
        const TextRewriter* rewriter = round % 2 == 0 ? nullptr : &everyday();
        // Of some arenas that hold few sentences, or none.
        const std::size_t capacity = round % 7 == 0 ? 4000 : round % 7 == 1 ? 100 : 0;
        std::string text = round % 5 == 0 ? "<pause=" + std::string(600, '3') + ">" : "";
        const std::size_t size = round % 10 == 0 ? 20000 : 400;
        while (text.size() < size) text += pieces[random() % pieces.size()][0];
        Stream in_pieces(rewriter, capacity);
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t length = random() % (round % 3 == 0 ? 2000 : 9);
            ASSERT_TRUE(in_pieces.stream.add(std::string_view(text).substr(at, length)));
            at += length;
        }
        EXPECT_TRUE(in_pieces.stream.end() || capacity > 0);
        ASSERT_EQ(in_pieces.told.lines, read_at_once(rewriter, text, capacity).lines) << text;
    }
}

// What has to have come when each sentence is told, up to "|".
TEST(Stream, ASentenceIsTold_WhenNothingCanChangeIt) {
    expect_table("told_at", [](const std::string& text) {
        std::string told_at;
        for (const TextRewriter* rewriter : {static_cast<const TextRewriter*>(nullptr),
                                             static_cast<const TextRewriter*>(&everyday())}) {
            Stream byte_by_byte(rewriter);
            told_at += told_at.empty() ? "" : " // ";
            std::size_t n_told = 0;
            for (const char c : text) {
                byte_by_byte.stream.add({&c, 1});
                told_at += c;
                const std::size_t n = byte_by_byte.told.lines.size();
                told_at += std::string(n - n_told, '|');
                n_told = n;
            }
        }
        return TableRow{text, told_at};
    });
}

TEST(Stream, BadCalls_HaveAClearAnswerAndLoseNothing) {
    Stream each;
    EXPECT_TRUE(each.stream.add(""));
    EXPECT_TRUE(each.stream.add(std::string_view("a\0d. c", 6)));
    TtsHost other;
    EXPECT_TRUE(TtsStream(other, nullptr, nullptr).add("One. </poem>. Two"));
    EXPECT_TRUE(other.read("x. y", nullptr, nullptr)) << "a stream without an end has left it";
    TtsStream second(each.host, nullptr, nullptr);
    EXPECT_FALSE(second.add("x. y"));
    second.forget();
    EXPECT_FALSE(second.end());
    EXPECT_FALSE(each.host.read("x. y", nullptr, nullptr)) << "the stream has the host";
    EXPECT_TRUE(each.stream.end());
    EXPECT_FALSE(each.stream.end());
    EXPECT_FALSE(each.stream.add("d."));
    EXPECT_EQ(each.told.lines,
              (std::vector<std::string>{"1+1 nul-byte", "0+5 a d.|. 0 2", "5+1  c|. 5"}));
}

TEST(Stream, WhatIsForgotten_IsNotToldAndClosesItsSpans) {
    Stream each;
    each.stream.add("One. <poem=a>two, three");
    each.stream.forget();
    each.stream.add("Four");
    EXPECT_TRUE(each.stream.end());
    each.stream.forget();
    each.stream.add("five</poem>");
    EXPECT_TRUE(each.stream.end());
    EXPECT_EQ(each.told.lines,
              (std::vector<std::string>{"0+5 One.|. 0", "5+13  two,|, 13", "23+4 Four|. 23",
                                        "31+1 stray-closing-tag", "27+11 five|. 27"}));
}

TEST(Stream, AHandlerThatForgets_GetsNoMoreOfThatText) {
    Stream each;
    each.forget_at = 2;
    EXPECT_FALSE(each.stream.add("One. Two. Three. Four"));
    EXPECT_TRUE(each.stream.add("Five. Six"));
    EXPECT_TRUE(each.stream.end());
    EXPECT_EQ(each.told.lines, (std::vector<std::string>{"0+5 One.|. 0", "5+5  Two.|. 5",
                                                         "21+6 Five.|. 21", "27+3  Six|. 27"}));
}

TEST(Stream, AHandlerThatStopsOrThrows_EndsTheText) {
    Stream each;
    each.stop_at = 1;
    EXPECT_FALSE(each.stream.add("One. Two." + std::string(2000, ' ')));
    EXPECT_FALSE(each.stream.add("Four. Five"));
    EXPECT_FALSE(each.stream.end());
    EXPECT_EQ(each.told.lines.size(), 1U);
    Stream at_end;
    at_end.stop_at = 1;
    EXPECT_TRUE(at_end.stream.add("One"));
    EXPECT_FALSE(at_end.stream.end());
    TtsHost host;
    TtsStream thrown(
        host, [](const HostSentence&) -> bool { throw std::runtime_error("handler"); }, nullptr);
    EXPECT_THROW(thrown.add("One. Two. Three"), std::runtime_error);
    EXPECT_FALSE(thrown.add("Four. Five"));
    thrown.forget();
    EXPECT_TRUE(thrown.add("Six"));
}

TEST(Stream, MuchText_KeepsLittleOfIt) {
    Stream each;
    const std::string blanks(9000, ' ');
    std::size_t most = 0;
    for (int i = 0; i < 30000; ++i) {
        each.stream.add(i % 1000 == 999 ? "<poem=a" : i == 300 ? blanks : "word, ");
        most = std::max(most, each.stream.text().size());
        each.told.lines.clear();
    }
    EXPECT_LT(most, 100000U);
}

// "x" is y, whatever follows; it is not asked before the text is there.
class PlainRewriter final : public TextRewriter {
  public:
    bool next(std::string_view text, Rewriting& rewriting) const override {
        EXPECT_FALSE(rewriting.may_go_on);
        const std::size_t at = text.find('x', rewriting.source.offset + rewriting.source.length);
        if (at == std::string_view::npos) return false;
        rewriting.source = {at, 1};
        rewriting.words = "y";
        return true;
    }
};

TEST(Stream, ARewriterThatTakesNoGrowingTexts_IsAskedAtTheEnd) {
    const PlainRewriter rewriter;
    Stream each(&rewriter);
    each.stream.add("a x. ");
    each.stream.add("e c. x");
    EXPECT_TRUE(each.told.lines.empty());
    EXPECT_TRUE(each.stream.end());
    EXPECT_EQ(each.told.lines, read_at_once(&rewriter, "a x. e c. x").lines);
}

}  // namespace
}  // namespace kavi

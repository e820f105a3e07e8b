#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kavi.h"

namespace {

// A stream, and what it has told: a line for each sentence and finding.
struct Stream {
    explicit Stream(std::uint32_t classes = 0, std::uint32_t wanted = 0) {
        kavi_reader* reader = nullptr;
        EXPECT_EQ(kavi_reader_new(0, &reader), KAVI_OK);
        EXPECT_EQ(kavi_reader_set_everyday(reader, classes), KAVI_OK);
        EXPECT_EQ(kavi_stream_new(reader, wanted, &stream), KAVI_OK);
        kavi_reader_free(reader);  // it is not needed any more
    }
    ~Stream() { kavi_stream_free(stream); }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;

    kavi_status add(const std::string& piece) {
        kavi_result* result = nullptr;
        const kavi_status status = kavi_stream_add(stream, piece.data(), piece.size(), &result);
        return take(status, result);
    }
    kavi_status end() {
        kavi_result* result = nullptr;
        const kavi_status status = kavi_stream_end(stream, &result);
        return take(status, result);
    }

    kavi_stream* stream = nullptr;
    std::vector<std::string> told;
    std::string rules;

  private:
    kavi_status take(kavi_status status, kavi_result* result) {
        std::size_t n_findings = 0;
        const auto tell_findings = [&](std::size_t sentence) {
            const kavi_finding* found = nullptr;
            while ((found = kavi_result_finding(result, n_findings)) != nullptr &&
                   found->sentence == sentence) {
                told.push_back(std::to_string(found->offset) + " " +
                               kavi_finding_code(found->code));
                ++n_findings;
            }
        };
        for (std::size_t i = 0; i < kavi_result_sentences(result); ++i) {
            tell_findings(i);
            const kavi_sentence& sentence = *kavi_result_sentence(result, i);
            told.push_back(std::to_string(sentence.source.offset) + " " + sentence.plain.data +
                           (sentence.ends_sentence != 0 ? "|." : "|,"));
            for (std::size_t run = 0; run < sentence.n_runs; ++run) {
                rules += std::string(sentence.runs[run].rule) + ";";
            }
        }
        tell_findings(kavi_result_sentences(result));
        kavi_result_free(result);
        return status;
    }
};

TEST(CStream, Pieces_AreToldClauseByClause) {
    Stream each(KAVI_ALL_EVERYDAY, KAVI_RUNS);
    for (const char* piece :
         {"It costs $", "", "1.5 mil", "lion, caf\xc3", "\xa9! </poem", "> It"}) {
        EXPECT_EQ(each.add(piece), KAVI_OK);
    }
    EXPECT_EQ(each.told,
              (std::vector<std::string>{"0 It costs one point five million dollars,|,"}));
    EXPECT_EQ(each.end(), KAVI_OK);
    EXPECT_EQ(each.told,
              (std::vector<std::string>{"0 It costs one point five million dollars,|,",
                                        "30 stray-closing-tag", "23  cafe!|.", "38  It|."}));
    EXPECT_NE(each.rules.find("everyday: currencies"), std::string::npos);
    EXPECT_EQ(each.add("more"), KAVI_ENDED);
    EXPECT_EQ(each.end(), KAVI_ENDED);
}

TEST(CStream, WhatIsForgotten_IsNotTold) {
    Stream each;
    EXPECT_EQ(each.add("One. Two, thr"), KAVI_OK);
    EXPECT_EQ(kavi_stream_forget(each.stream), KAVI_OK);
    EXPECT_EQ(each.add("Four"), KAVI_OK);
    EXPECT_EQ(each.end(), KAVI_OK);
    EXPECT_EQ(kavi_stream_forget(each.stream), KAVI_OK);
    EXPECT_EQ(each.add("Five. S"), KAVI_OK);
    EXPECT_EQ(each.told,
              (std::vector<std::string>{"0 One.|.", "5  Two,|,", "13 Four|.", "17 Five.|."}));
}

TEST(CStream, BadArguments_HaveAnAnswer) {
    int object = 0;
    auto* none = reinterpret_cast<kavi_stream*>(&object);  // any pointer but null
    auto* result = reinterpret_cast<kavi_result*>(&object);
    kavi_reader* reader = nullptr;
    ASSERT_EQ(kavi_reader_new(0, &reader), KAVI_OK);
    EXPECT_EQ(kavi_stream_new(reader, 0, nullptr), KAVI_BAD_ARGUMENT);
    EXPECT_EQ(kavi_stream_new(reader, 2, &none), KAVI_BAD_ARGUMENT);
    EXPECT_EQ(none, nullptr);
    kavi_reader_free(reader);
    EXPECT_EQ(kavi_stream_new(nullptr, 0, &none), KAVI_BAD_ARGUMENT);
    EXPECT_EQ(kavi_stream_add(nullptr, "a", 1, &result), KAVI_BAD_ARGUMENT);
    EXPECT_EQ(kavi_stream_end(nullptr, &result), KAVI_BAD_ARGUMENT);
    EXPECT_EQ(result, nullptr);
    EXPECT_EQ(kavi_stream_forget(nullptr), KAVI_BAD_ARGUMENT);
    kavi_stream_free(nullptr);
    Stream each;
    EXPECT_EQ(kavi_stream_add(each.stream, nullptr, 1, &result), KAVI_BAD_ARGUMENT);
    EXPECT_EQ(kavi_stream_add(each.stream, "a", 1, nullptr), KAVI_BAD_ARGUMENT);
    EXPECT_EQ(each.add(std::string("b\0c", 3)), KAVI_OK);
    EXPECT_EQ(each.end(), KAVI_OK);
    EXPECT_EQ(each.told, (std::vector<std::string>{"1 nul-byte", "0 b c|."}));
    EXPECT_STREQ(kavi_status_text(KAVI_ENDED), "the text has ended");
}

}  // namespace

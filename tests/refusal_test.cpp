// Every request of every call refused in turn.

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "post_pro_tn_eng.h"
#include "records.h"
#include "strict_services.h"

namespace kavi {
namespace {

// Between them they reach every request that the engine makes.
const char* const SENTENCES[] = {
    "",
    "word NASA Tel. 555-0100",
    "(86) 10-12345678 (a)",
    "+86 10 12345678 1+1",
    "3/1/2020 3/4 3.14 1999 May 5 15/1/15",
    "$5.50 $1,234.5 $12345 5$",
    "10:30 10:30:15 x",
    "1,234,567,890 21st 1234th 123456789012345",
    "a <punc=dou> b<breaktime=5> c",
    "<emphasis=s>a <prosody=rate=\"2\">NASA <poem=p>b</poem> c</prosody></emphasis> d",
};

class Refusal : public testing::Test {
  protected:
    // One call of each kind on what the one before it left. Checks what failure must leave behind.
    void run(const char* sentence) {
        std::string source = sentence;
        char speakable[SZ_TEXT_MAX_LEN] = {};
        if (engine.eng_text_tokenize(source.data(), speakable) != 0) {
            EXPECT_STREQ(speakable, "") << "only the sections can fail a sentence";
        }
        EXPECT_TRUE(arena.in_use.empty()) << "the tokenizer kept a block";
        UtteranceSyllable* utt = reinterpret_cast<UtteranceSyllable*>(this);
        int n_utt = -1;
        const int result = engine.eng_text_to_utterance_syllable(source.data(), utt, n_utt);
        ASSERT_EQ(utt == nullptr, n_utt == 0);
        if (utt == nullptr) {
            EXPECT_EQ(result, -1);
            EXPECT_TRUE(arena.in_use.empty());
            return;
        }
        bool stopped = false;
        for (int i = 1; i < n_utt; ++i) {
            stopped = stopped || utt[i].syllable == nullptr;
            EXPECT_EQ(utt[i].syllable == nullptr, stopped) << "a word behind the one that failed";
            EXPECT_EQ(utt[i].zhuyin == nullptr, stopped);
        }
        EXPECT_EQ(result, stopped ? -1 : 0);
        release(utt, n_utt, &arena);
        EXPECT_TRUE(arena.in_use.empty()) << "the builder kept a block";
    }

    tag_mem_stack_array arena;
    PostProTnEng engine;
};

TEST_F(Refusal, OfOneRequestOrOfAllFromOneOn) {
    engine.init(&arena);
    for (const char* sentence : SENTENCES) {
        arena.first_refused = arena.last_refused = std::numeric_limits<long>::max();
        arena.requests = 0;
        run(sentence);
        const long total = arena.requests;
        for (long k = 0; k < total; ++k) {
            for (const long last : {k, total + 1000}) {
                SCOPED_TRACE(std::string(sentence) + ", request " + std::to_string(k));
                arena.first_refused = k;
                arena.last_refused = last;
                arena.requests = 0;
                run(sentence);
            }
        }
    }
}

TEST_F(Refusal, ReadersWithoutScratchWriteNothingAndTakeOneSection) {
    engine.init(&arena);
    const struct {
        const char* sentence;
        const char* speakable;
    } rows[] = {
        {"3/4", " divide  forth"},  // the 4 has a scratch buffer again
        {"3.14", " <punc=ju>  fourteenth"},
        {"$15.50", " <punc=ju>  fifty"},
        {"10:30", ""},  // a clock time ends the walk
        {"(a)", "a <punc=youkuo>"},
        {"+86 10", " eighty sixth   ten"},
        {"NASA", "NASA"},  // the lexicon is not asked
        {"1999 x", " x"},
        {"21st x", " st x"},
    };
    for (const auto& row : rows) {
        std::string source = row.sentence;
        char speakable[SZ_TEXT_MAX_LEN] = {};
        Section* head = nullptr;
        EXPECT_EQ(engine.text_to_queue(source.data(), head), 0);
        arena.first_refused = arena.last_refused = arena.requests;  // the first reader's
        EXPECT_EQ(engine.section_process(head, speakable), 0);
        std::string words = speakable;
        while (!words.empty() && words.back() == ' ') words.pop_back();
        EXPECT_EQ(words, row.speakable) << row.sentence;
        while (head != nullptr) {
            Section* next = head->m_pnext;
            mem_stack_release_buf(head, 0, MEM_COMMON, &arena);
            head = next;
        }
    }
}

}  // namespace
}  // namespace kavi

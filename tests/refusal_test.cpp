// Every request of every call refused in turn.

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "post_pro_tn_eng.h"
#include "records.h"
#include "strict_services.h"
#include "table.h"

namespace kavi {
namespace {

class Refusal : public testing::Test {
  protected:
    // One call of each kind on what the one before it left. Checks what failure must leave behind.
    void run(std::string source) {
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
    for (const TableRow& row : read_table("every_request")) {
        const std::string& sentence = row[0];
        arena.first_refused = arena.last_refused = std::numeric_limits<long>::max();
        arena.requests = 0;
        run(sentence);
        const long total = arena.requests;
        for (long k = 0; k < total; ++k) {
            for (const long last : {k, total + 1000}) {
                SCOPED_TRACE(sentence + ", request " + std::to_string(k));
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
    for (const TableRow& row : read_table("without_scratch")) {
        std::string source = row[0];
        char speakable[SZ_TEXT_MAX_LEN] = {};
        Section* head = nullptr;
        EXPECT_EQ(engine.text_to_queue(source.data(), head), 0);
        arena.first_refused = arena.last_refused = arena.requests;  // the first reader's
        EXPECT_EQ(engine.section_process(head, speakable), 0);
        std::string words = speakable;
        while (!words.empty() && words.back() == ' ') words.pop_back();
        EXPECT_EQ(words, row[1]) << row[0];
        while (head != nullptr) {
            Section* next = head->m_pnext;
            mem_stack_release_buf(head, 0, MEM_COMMON, &arena);
            head = next;
        }
    }
}

TEST_F(Refusal, NoneAndTheLexiconIsAskedForWordsInCapitals) {
    engine.init(&arena);
    run("NASA");
    EXPECT_EQ(looked_up, "nasa");
    run("Ab aB a");
    EXPECT_EQ(looked_up, "nasa") << "and for no others";
}

}  // namespace
}  // namespace kavi

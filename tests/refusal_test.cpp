// Every request of every call refused in turn.

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "engine_peer.h"
#include "post_pro_tn_eng.h"
#include "records.h"
#include "strict_services.h"
#include "table.h"
#include "tts_host.h"

namespace kavi {
namespace {

class Refusal : public testing::Test {
  protected:
    // One call of each kind on what the one before it left. Checks what failure must leave.
    void run(std::string source) {
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
            EXPECT_EQ(utt[i].syllable == nullptr, stopped) << "a word after the one that failed";
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

TEST_F(Refusal, OfASectionLeavesTheTargetUntouched) {
    char target[SZ_TEXT_MAX_LEN] = "5";
    char nothing[] = "";
    char word[] = "a";
    EXPECT_EQ(engine.eng_text_tokenize(word, target), -1) << "before init";
    engine.init(&arena);
    arena.first_refused = 0;
    EXPECT_EQ(engine.eng_text_tokenize(word, target), -1);
    EXPECT_STREQ(target, "5");
    EXPECT_EQ(engine.eng_text_tokenize(nothing, target), 0);
    EXPECT_EQ(arena.requests, 1);
    arena.first_refused = 1000;
    EXPECT_EQ(engine.eng_text_tokenize(word, target), 0);
    EXPECT_STREQ(target, "a");
    EXPECT_EQ(arena.requests, 2);
    EXPECT_TRUE(arena.in_use.empty());
}

TEST_F(Refusal, OfATimesBufferLeavesTheTimeUnread) {
    Section seconds[5] = {{"1", 2, &seconds[1], nullptr},
                          {":", 2, &seconds[2], nullptr},
                          {"2", 1, &seconds[3], nullptr},
                          {":", 2, &seconds[4], nullptr},
                          {"3", 1, nullptr, nullptr}};
    char target[WORD_MAX_LEN] = "";
    engine.init(&arena);
    for (const bool refused : {true, false}) {
        arena.first_refused = refused ? 0 : 1000;
        const Section* last = (engine.*PostProTnEngPeer::time_number)(seconds, target);
        EXPECT_EQ(last, refused ? nullptr : &seconds[4]);
        EXPECT_EQ(target[0] == '\0', refused);
    }
    EXPECT_TRUE(arena.in_use.empty());
}

TEST_F(Refusal, OfAWordInASpanLeavesTheNumberOfThoseStored) {
    engine.init(&arena);
    arena.first_refused = arena.last_refused = 6;  // the first block of the fourth word
    std::vector<UtteranceSyllable> utt(6);
    char span[] = "a b <poem=p>c d</poem> e";
    int n = 1;
    EXPECT_FALSE(engine.insert_ssml_info(n, utt.data(), "s", span, "emphasis"));
    EXPECT_EQ(n, 4);
    EXPECT_EQ(to_text(utt.data(), n), "|a(emphasis=s)|b(emphasis=s)|c(emphasis=s poem=p)");
    EXPECT_EQ(utt[4].syllable, nullptr);
    release_words(utt.data(), 1, n, &arena);
    EXPECT_TRUE(arena.in_use.empty());
}

// On blocks with exact bounds, from sources with a byte in front of them that is no NUL.
TEST_F(Refusal, RecordsAndAttributesKeepToTheirBounds) {
    engine.init(&arena);
    for (const unsigned length : {0U, 1U, 2U, 3U, 4U, 7U, 8U, 12U, 13U, 16U, 17U, 499U}) {
        const std::string source = "\x7f" + std::string(length, 'w');
        char* text = const_cast<char*>(source.c_str()) + 1;
        std::vector<UtteranceSyllable> utt(2);
        std::strcpy(utt[1].cssml_tag.poem, "p");  // of an earlier word
        EXPECT_TRUE(engine.insert_syllable(1, utt.data(), text));
        EXPECT_STREQ(utt[1].cssml_tag.poem, "");
        EXPECT_EQ(utt[1].syllable, source.substr(1));
        EXPECT_EQ(utt[1].syl_len, static_cast<short>(length + 1U));
        const std::size_t zhuyin = std::max<std::size_t>(10 * length, 128);
        EXPECT_EQ(utt[1].zy_len, static_cast<short>(zhuyin));
        EXPECT_EQ(std::string(utt[1].zhuyin, zhuyin), std::string(zhuyin, '\0'));
        EXPECT_EQ(utt[1].pause_type, PAUSE_WORD_FE);
        EXPECT_EQ(utt[1].pausetype_ta, PAUSE_WORD_FE);
        EXPECT_EQ(utt[1].pause_type_tn, PAUSE_WORD_FE);
        EXPECT_EQ(utt[1].pause_pl_type, PAUSE_SYLLABLE_FE);
        const std::string field = source.substr(1, 19);
        EXPECT_TRUE(engine.insert_breaktime(2, utt.data(), text));
        EXPECT_TRUE(engine.insert_emphasis_in(2, utt.data(), text));
        EXPECT_TRUE(engine.insert_poem_in(2, utt.data(), text));
        EXPECT_EQ(engine.insert_quill_effect_in(2, utt.data(), text), length < 20);
        const std::string rate = "rate=\"" + source.substr(1) + "\" x";
        EXPECT_FALSE(engine.insert_prosody_in(2, utt.data(), rate.c_str()));
        EXPECT_EQ(
            to_text(utt[1]),
            source.substr(1) + (length == 0 ? ""
                                            : "(breaktime=" + field + " emphasis=" + field +
                                                  " rate=" + field + " poem=" + field +
                                                  (length < 20 ? " effect=" + field : "") + ")"));
        // A shorter value leaves nothing of a longer one, an empty one nothing at all.
        EXPECT_TRUE(engine.insert_poem_in(2, utt.data(), "p"));
        EXPECT_TRUE(engine.insert_emphasis_in(2, utt.data(), ""));
        EXPECT_EQ(std::string(utt[1].cssml_tag.poem, 20), "p" + std::string(19, '\0'));
        EXPECT_EQ(std::string(utt[1].cssml_tag.emphasis, 20), std::string(20, '\0'));
        release_words(utt.data(), 1, 2, &arena);
    }
    EXPECT_TRUE(arena.in_use.empty());
}

// The host layer on a host's own arena and services, which have no way to make an arena.
TEST_F(Refusal, TheHostLayerUsesTheServicesOfItsHost) {
    TtsHost host(&arena);
    int words = 0;
    EXPECT_TRUE(host.read(
        "it's 2. b",
        [&](const HostSentence& sentence) {
            EXPECT_FALSE(arena.in_use.empty());
            words += sentence.n_records - 1;
            return true;
        },
        nullptr));
    EXPECT_EQ(words, 4);
    EXPECT_TRUE(arena.in_use.empty());
    arena.first_refused = arena.requests;
    EXPECT_FALSE(host.read("a", nullptr, nullptr));
}

TEST_F(Refusal, TheLexiconIsAskedForWordsInCapitals) {
    engine.init(&arena);
    for (std::string sentence : {"NASA", "Ab aB a", "5 USA", "5 aB"}) {
        char speakable[SZ_TEXT_MAX_LEN] = {};
        EXPECT_EQ(engine.eng_text_tokenize(sentence.data(), speakable), 0);
        EXPECT_EQ(looked_up, sentence[0] == '5' ? "usa" : "nasa") << "and for no others";
    }
}

}  // namespace
}  // namespace kavi

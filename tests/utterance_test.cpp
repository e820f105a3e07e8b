#include <random>

#include "engine_peer.h"
#include "expect_table.h"
#include "records.h"
#include "step_reader.h"

namespace kavi {
namespace {

using Peer = PostProTnEngPeer;

class Utterance : public EngineTest {
  protected:
    std::string build(std::string text) {
        UtteranceSyllable* utt = nullptr;
        int n_utt = -1;
        const int result = engine.eng_text_to_utterance_syllable(text.data(), utt, n_utt);
        std::string records = to_text(utt, n_utt);
        kavi::release(utt, n_utt, arena);
        return (result == 0 ? "" : "failed: ") + records;
    }
};

TEST_F(Utterance, OneSentenceEndToEnd) {
    const Cut cut = normalize("<prosody=rate=\"2\">we have 2 cats, ok</prosody>");
    EXPECT_EQ(cut.sentence, "<prosody=rate=\"2\">we have 2 cats,</prosody>");
    EXPECT_EQ(cut.rest, "<prosody=rate=\"2\">ok</prosody>");
    const std::string speakable = tokenize(cut.sentence);
    EXPECT_EQ(speakable, "<prosody=rate=\"2\"> we have  two  cats <punc=dou> </prosody>");
    EXPECT_EQ(build(speakable), "|we(rate=2)|have(rate=2)|two(rate=2)|cats+dou!(rate=2)");
}

TEST_F(Utterance, AsInTheTables) {
    for (const char* table : {"words", "punctuation", "spans", "chains", "outside_the_language"}) {
        expect_table(table, [this](const std::string& text) {
            return TableRow{text, build(text)};
        });
    }
}

TEST_F(Utterance, AWordWithoutStorageLeavesNothing) {
    char buffer[] = "";
    UtteranceSyllable utt[2] = {};
    utt[1].syllable = buffer;
    engine.init(nullptr);
    EXPECT_FALSE(engine.insert_syllable(1, utt, "word"));
    EXPECT_EQ(utt[1].syllable, nullptr);
}

TEST_F(Utterance, AnUnknownMarkCountsAsNone) {
    const std::pair<std::string, PUNC_type> marks[] = {{"ju", PUNC_JU_FE},
                                                       {"", PUNC_NULL_FE},
                                                       {"j", PUNC_NULL_FE},
                                                       {"shenglue", PUNC_SHENGLUE_FE},
                                                       {"shenglues", PUNC_NULL_FE}};
    UtteranceSyllable utt[1] = {};
    for (auto [name, punc] : marks) {
        const int n = utt[0].n_punc;
        EXPECT_TRUE((engine.*Peer::insert_punc)(1, utt, name.data()));
        EXPECT_EQ(utt[0].n_punc, n + 1) << name;
        EXPECT_EQ(utt[0].punc_arr[n], punc) << name;
    }
}

TEST_F(Utterance, PauseCharacters) {
    for (const TableRow& row : read_table("pause_characters")) {
        UtteranceSyllable record = {};
        record.pause_type = record.pause_type_tn = PAUSE_PHRASE_FE;
        EXPECT_TRUE((engine.*Peer::insert_pause)(1, &record, row[0][0]));
        EXPECT_EQ(std::to_string(record.pause_type), row[1]) << row[0];
        EXPECT_EQ(record.pause_type_tn, record.pause_type) << row[0];
    }
}

#ifndef NDEBUG
TEST_F(Utterance, AssertionsHaveTheTextsThatHostsKnow) {
    char no_tag[] = "a";
    char part[8];
    UtteranceSyllable record = {};
    EXPECT_DEATH(Peer::parse_tag(engine, no_tag, part, part, part), "\\*sz_text == '<'");
    EXPECT_DEATH((engine.*Peer::insert_pause)(1, &record, 'x'),
                 "ch == '&' \\|\\| ch == ' ' \\|\\| ch == '\\|' \\|\\| ch == '#' .* ch == '\\+'");
}
#endif

TEST_F(Utterance, AttributesOneByOne) {
    UtteranceSyllable utt[1] = {};
    char pause[] = "5";
    EXPECT_TRUE(engine.insert_breaktime(1, utt, pause));
    EXPECT_TRUE(engine.insert_poem_in(1, utt, "p"));
    EXPECT_TRUE(engine.insert_emphasis_in(1, utt, "e"));
    EXPECT_TRUE(engine.insert_quill_effect_in(1, utt, "0123456789"));
    EXPECT_FALSE(engine.insert_quill_effect_in(1, utt, "0123456789"));
    EXPECT_TRUE(engine.insert_prosody_in(1, utt, ""));
    EXPECT_FALSE(engine.insert_prosody_in(1, utt, "rate=\"1\" x"));
    EXPECT_EQ(to_text(utt[0]), "(breaktime=5 emphasis=e rate=1 poem=p effect=0123456789)");
    int n = 1;
    char words[] = "a b";
    EXPECT_FALSE(engine.insert_ssml_info(n, utt, "", words, std::string(200, 'n').c_str()));
    EXPECT_FALSE(engine.insert_ssml_info(n, utt, std::string(200, 'v').c_str(), words, "poem"));
    EXPECT_EQ(n, 1);
    EXPECT_FALSE(engine.insert_ssml_info_in(1, utt, "a\tb\tc", "poem\tother\temphasis"));
    EXPECT_TRUE(engine.insert_ssml_info_in(1, utt, "", ""));
    // A chain without names has its tab all the same.
    UtteranceSyllable two[3] = {};
    char nested[] = "a <emphasis=strong>b</emphasis>";
    n = 1;
    EXPECT_TRUE(engine.insert_ssml_info(n, two, "v", nested, ""));
    EXPECT_EQ(to_text(two, n), "|a|b(emphasis=v)");
    release_words(two, 1, n, arena);
    EXPECT_EQ(to_text(utt[0]), "(breaktime=5 emphasis=e rate=1 poem=a effect=0123456789)");
}

TEST_F(Utterance, ASpanIsStoredFromTheNextRecordOn) {
    UtteranceSyllable* utt = nullptr;
    int n_utt = 0;
    char four[] = "x y z w";
    EXPECT_EQ(engine.eng_text_to_utterance_syllable(four, utt, n_utt), 0);
    release_words(utt, 2, 4, arena);
    int n = 2;
    char words[] = "a <poem=q>b</poem>";
    EXPECT_TRUE(engine.insert_ssml_info(n, utt, "p", words, "emphasis"));
    EXPECT_EQ(n, 4);
    EXPECT_EQ(to_text(utt, n_utt), "|x|a(emphasis=p)|b(emphasis=p poem=q)|w");
    kavi::release(utt, n_utt, arena);
}

TEST_F(Utterance, TagsAreCutIntoTheirParts) {
    char name[MEMORY_SIZE_TAG_LABEL_TN];
    char value[100];
    char content[100];
    expect_table("tag_parts", [&](std::string text) {
        const char* end = Peer::parse_tag(engine, text.data(), name, value, content);
        const std::string at = end != nullptr ? std::to_string(end - text.data()) : "none";
        return TableRow{text, name, value, content, at};
    });
}

TEST_F(Utterance, EveryCapacityGivesSuccessOrCleanFailure) {
    std::string sentence = "<poem=p>NASA paid $1,234.50 on 3/1/2020 (86) 10-5<punc=ju> ok</poem>";
    int successes = 0;
    for (std::size_t capacity = 16; successes < 3; capacity += 16) {
        mem_stack_handle small = mem_stack_create(capacity);
        engine.init(small);
        char speakable[SZ_TEXT_MAX_LEN] = {};
        const int tokenized = engine.eng_text_tokenize(sentence.data(), speakable);
        EXPECT_EQ(mem_stack_used(small), 0U);
        UtteranceSyllable* utt = nullptr;
        int n_utt = 0;
        const int built = engine.eng_text_to_utterance_syllable(sentence.data(), utt, n_utt);
        kavi::release(utt, n_utt, small);
        EXPECT_EQ(mem_stack_used(small), 0U) << capacity;
        EXPECT_LE(mem_stack_peak(small), capacity);
        if (tokenized == 0 && built == 0) ++successes;
        mem_stack_destroy(small);
    }
    engine.init(arena);
}

// More unclosed tags than a scan searches for one by one, among closed ones of the same names.
TEST_F(Utterance, IsCutIntoTheSameWordsByStepsHoweverTagsAreClosed) {
    std::vector<std::string> pieces = {"<py=1>",     "</py>",   "<pya=>",      "</pya>", "<py>",
                                       "<letter=b>", "<poem=>", "</poem>",     "</x>",   "a ",
                                       "<poemx=2>",  "</poemx", "<py1=</py1>", "bc",     " <"};
    pieces.push_back("<" + std::string(600, 'n'));
    std::minstd_rand random(1);
    for (int n = 0; n < 2000; ++n) {
        std::string text;
        const int n_pieces = n % 100 == 0 ? 4000 : 60;  // of the longer ones, no list holds all
        for (int i = 0; i < n_pieces; ++i) text += pieces[random() % pieces.size()];
        UtteranceSyllable* utt = nullptr;
        int n_utt = 0;
        if (engine.eng_text_to_utterance_syllable(text.data(), utt, n_utt) == 0) {
            EXPECT_EQ(words_of_records(utt, n_utt), words_by_steps(engine, text)) << text;
        }
        kavi::release(utt, n_utt, arena);
    }
}

// A span that is not read, being nested too deep, needs room for two where a list has room for one.
TEST_F(Utterance, AWordInPiecesSurvivesAFullList) {
    const auto repeated = [](const std::string& piece, int n) {
        std::string text;
        while (n-- > 0) text += piece;
        return text;
    };
    for (int n = 1980; n < 1990; ++n) {
        std::string text = "ab<sil=1>cd " + repeated("<poem=p>", 64) + repeated("x ", n) +
                           "<poem=p>y</poem>" + repeated("</poem>", 64);
        UtteranceSyllable* utt = nullptr;
        int n_utt = 0;
        EXPECT_EQ(engine.eng_text_to_utterance_syllable(text.data(), utt, n_utt), -1);
        ASSERT_EQ(n_utt, n + 2);
        EXPECT_STREQ(utt[1].syllable, "abcd") << n;
        kavi::release(utt, n_utt, arena);
    }
}

TEST_F(Utterance, StepsAndCountsByThemselves) {
    std::string many;  // more than one list holds
    while (many.size() < 10000) many += "a ";
    std::string nested;  // as deep as spans are read
    while (nested.size() < 64 * 7) nested += "<poem=>";
    for (const auto& [text, words] :
         std::vector<std::pair<std::string, int>>{{"a <emphasis=x>b c</emphasis> d", 4},
                                                  {"a<orgLen=1>b c", 2},
                                                  {"a <punc=dou> b", 2},
                                                  {std::string(1200, 'x'), 3},
                                                  {many, 5000},
                                                  {nested + "a", 1},
                                                  {nested + "<poem=>a</poem> b", 1},
                                                  {"", 0}}) {
        int n = 10;
        std::string span = text;
        EXPECT_TRUE(engine.count_embed_word(n, span.data()));
        EXPECT_EQ(n, 10 + words) << text;
    }
    char text[] = "ab <sil=1>c";
    char word[WORD_MAX_LEN] = {};
    char tag[MEMORY_SIZE_TAG_LABEL_TN] = {};
    char value[16] = {};
    char target[16] = {};
    int i = 0;
    int j = 0;
    int mark = -1;
    const auto step = [&] {
        return engine.filter_text(text, word, tag, value, target, i, j, mark);
    };
    for (int n = 0; n < 3; ++n) EXPECT_TRUE(step());
    EXPECT_EQ(std::string(word) + std::to_string(i) + std::to_string(j) + std::to_string(mark),
              "ab321");
    word[0] = '\0';
    j = 0;
    EXPECT_TRUE(step());
    EXPECT_STREQ(tag, "sil");
    EXPECT_EQ(i, 10);
    EXPECT_EQ(mark, 0);
}

}  // namespace
}  // namespace kavi

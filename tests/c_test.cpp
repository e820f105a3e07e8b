// The functions of kavi.h: what they say is in the golden file; whatever is wrong is an answer.

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <new>
#include <set>
#include <string>
#include <vector>

#include "kavi.h"
#include "kavi_version.h"  // the same macros, or a warning
#include "table.h"
#include "tts_findings.h"

namespace {

// How many allocations of this program succeed from now on; negative: all.
long allocations_left = -1;

}  // namespace

// NOLINTBEGIN: replaces the allocation of the whole program, the library under test included. Where
// one half is compiled inline, g++ takes the other for another allocator.
[[gnu::noinline]] void* operator new(std::size_t size) {
    if (allocations_left == 0) throw std::bad_alloc();
    if (allocations_left > 0) --allocations_left;
    if (void* block = std::malloc(size > 0 ? size : 1)) return block;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* block) noexcept {
    std::free(block);
}
[[gnu::noinline]] void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}
// NOLINTEND

namespace {

constexpr const char* TEXT =
    "«Dr. Smith» <prosody=rate=\"2\">paid $5.50<pause=200></prosody> on 3/1/2020, </poem>ok? \xff "
    "It's 10:30!";

struct Reader {
    Reader() { EXPECT_EQ(kavi_reader_new(0, &reader), KAVI_OK); }
    ~Reader() { kavi_reader_free(reader); }
    kavi_reader* reader = nullptr;
};

std::string listed(kavi_range range) {
    return std::to_string(range.offset) + "+" + std::to_string(range.length);
}

std::string listed(const char* kind, const kavi_word& word) {
    std::string all = std::string(kind) + " " + word.text.data + "|" + word.after.data + "| " +
                      listed(word.source) + " " + kavi_pause_name(word.pause) + "|";
    for (int i = 0; i < word.n_marks; ++i) (all += ' ') += kavi_mark_name(word.marks[i]);
    if (*word.break_time != '\0') (all += " breaktime=") += word.break_time;
    for (int i = 0; i < KAVI_ATTRIBUTES; ++i) {
        if (*word.attributes[i] == '\0') continue;
        all += std::string(" ") + kavi_attribute_name(static_cast<kavi_attribute>(i)) + "=";
        all += word.attributes[i];
    }
    return all + "\n";
}

// As in tests/golden/answers.txt, which Python and JavaScript give, too.
std::string listed(const kavi_sentence& sentence) {
    std::string all = "sentence " + listed(sentence.source);
    for (const kavi_text& text :
         {sentence.normalized, sentence.speakable, sentence.plain, sentence.before}) {
        EXPECT_EQ(text.length, std::strlen(text.data));
        (all += '|') += text.data;
    }
    all += "|\n" + listed("head", *sentence.head);
    for (std::size_t i = 0; i < sentence.n_words; ++i) all += listed("word", sentence.words[i]);
    for (std::size_t i = 0; i < sentence.n_runs; ++i) {
        const kavi_run& run = sentence.runs[i];
        all += "run " + listed(run.source) + " " + run.rule + "|" + run.reading.data + "|\n";
    }
    return all;
}

std::string listed(const kavi_finding& finding) {
    return std::string("finding ") + kavi_finding_code(finding.code) + " " +
           listed(kavi_range{finding.offset, finding.length}) + " " +
           std::to_string(finding.sentence) + " " + kavi_finding_message(finding.code) + "\n";
}

struct Listing {
    std::string all;
    int left = -1;  // until a handler stops; negative: never
    bool go_on() { return left < 0 || left-- > 0; }
};

kavi_handlers listing(Listing& listing) {
    return {[](void* user, const kavi_sentence* sentence) {
                auto* to = static_cast<Listing*>(user);
                to->all += listed(*sentence);
                return to->go_on() ? 2 : 0;
            },
            [](void* user, const kavi_finding* finding) {
                auto* to = static_cast<Listing*>(user);
                to->all += listed(*finding);
                return to->go_on() ? 2 : 0;
            },
            &listing};
}

}  // namespace

TEST(C, AnswersAreAsInTheGoldenFile) {
    const std::string name = KAVI_TEST_GOLDEN "/answers.txt";
    std::ifstream file(name);
    std::string golden;
    std::string answers;
    for (std::string line; std::getline(file, line); golden += line + "\n") {
        if (line[0] != '>') continue;
        answers += line + "\n";
        const bool is_everyday = line[1] == '>';
        const std::string text = kavi::unescape(line.substr(is_everyday ? 3 : 2));
        const Reader r;
        kavi_reader_set_everyday(r.reader, is_everyday ? KAVI_ALL_EVERYDAY : 0);
        Listing each;
        const kavi_handlers handlers = listing(each);
        const std::uint32_t wanted = text.size() < 1000 ? KAVI_RUNS : 0;
        EXPECT_EQ(kavi_read_each(r.reader, text.data(), text.size(), wanted, &handlers), KAVI_OK);
        answers += each.all;
    }
    if (std::getenv("KAVI_RENEW_GOLDEN") != nullptr) std::ofstream(name) << answers;
    EXPECT_EQ(answers, golden);
    EXPECT_NE(answers, "");
}

TEST(C, AResultLivesOnWithoutItsReaderAndItsText) {
    const Reader r;
    std::string text =
        TEXT;  // and sentences that need more room than one has at first, after one that does not
    for (int i = 0; i < 8000; ++i) text += i % 2000 == 0 ? ". " : "b ";
    Listing each;
    const kavi_handlers handlers = listing(each);
    EXPECT_EQ(kavi_read_each(r.reader, text.data(), text.size(), KAVI_RUNS, &handlers), KAVI_OK);
    kavi_result* result = nullptr;
    std::string kept;
    {
        const Reader other;
        const std::string copy = text;
        EXPECT_EQ(kavi_read(other.reader, copy.data(), copy.size(), KAVI_RUNS, &result), KAVI_OK);
    }
    std::size_t finding = 0;
    for (std::size_t i = 0; i <= kavi_result_sentences(result); ++i) {
        for (; finding < kavi_result_findings(result); ++finding) {
            const kavi_finding* found = kavi_result_finding(result, finding);
            if (found->sentence != i) break;
            kept += listed(*found);
        }
        if (i < kavi_result_sentences(result)) kept += listed(*kavi_result_sentence(result, i));
    }
    EXPECT_EQ(kept, each.all);
    EXPECT_EQ(kavi_result_sentence(result, kavi_result_sentences(result)), nullptr);
    EXPECT_EQ(kavi_result_finding(result, kavi_result_findings(result)), nullptr);
    kavi_result_free(result);

    EXPECT_EQ(kavi_read(r.reader, "a", 1, 0, &result), KAVI_OK);
    EXPECT_EQ(kavi_result_sentence(result, 0)->n_runs, 0U);
    kavi_result_free(result);
}

TEST(C, GivesTheSpokenTextAlone) {
    const struct {
        const char* text;
        std::uint32_t form;
        const char* spoken;
        kavi_status status;
    } cases[] = {
        {"", KAVI_PLAIN, "", KAVI_OK},
        {"  ", KAVI_SPEAKABLE, "", KAVI_OK},
        {"Tom, 5!  No", KAVI_PLAIN, "Tom, five!  No", KAVI_OK},
        {"a. 5", KAVI_SPEAKABLE, "a <punc=ju>\n five", KAVI_OK},
        {"a</poem> b", KAVI_PLAIN, "a b", KAVI_OK},
    };
    const Reader r;
    for (const auto& row : cases) {
        char* spoken = nullptr;
        std::size_t length = 0;
        EXPECT_EQ(
            kavi_normalize(r.reader, row.text, std::strlen(row.text), row.form, &spoken, &length),
            row.status)
            << row.text;
        EXPECT_STREQ(spoken, row.spoken);
        EXPECT_EQ(length, std::strlen(row.spoken));
        kavi_free(spoken);
    }

    // An arena that holds no word: all is passed over, and said so.
    kavi_reader* small = nullptr;
    char* spoken = nullptr;
    ASSERT_EQ(kavi_reader_new(1, &small), KAVI_OK);
    EXPECT_EQ(kavi_normalize(small, "a b", 3, KAVI_PLAIN, &spoken, nullptr), KAVI_INCOMPLETE);
    EXPECT_STREQ(spoken, "");
    kavi_free(spoken);
    kavi_reader_free(small);
}

TEST(C, ReadsByLexiconAndEverydayRules) {
    const Reader r;
    const auto spoken = [&](std::string_view text) {
        char* plain = nullptr;
        EXPECT_EQ(kavi_normalize(r.reader, text.data(), text.size(), KAVI_PLAIN, &plain, nullptr),
                  KAVI_OK);
        const std::string copy = plain;
        kavi_free(plain);
        return copy;
    };
    EXPECT_EQ(kavi_reader_set_lexicon(r.reader, "mine", "kavi\tkahvee\n", 12), KAVI_OK);
    EXPECT_EQ(spoken("Prof. kavi 5"), "Prof. kahvee five");
    EXPECT_EQ(kavi_reader_set_everyday(r.reader, kavi_everyday_class("contractions")), KAVI_OK);
    EXPECT_EQ(spoken("kavi won't"), "kahvee will not");
    EXPECT_EQ(kavi_reader_set_lexicon(r.reader, "mine", "ok\tokay\nbad\n", 12), KAVI_BAD_LEXICON);
    EXPECT_EQ(std::string(kavi_reader_error(r.reader)).substr(0, 7), "mine:2:");
    EXPECT_EQ(spoken("kavi"), "kahvee");
    EXPECT_EQ(kavi_reader_set_lexicon(r.reader, nullptr, nullptr, 0), KAVI_OK);
    EXPECT_STREQ(kavi_reader_error(r.reader), "");
    EXPECT_EQ(spoken("kavi won't"), "kavi will not");
    EXPECT_EQ(kavi_reader_set_everyday(r.reader, KAVI_YEARS | KAVI_AMERICAN_DATES), KAVI_OK);
    EXPECT_EQ(spoken("3/4/2020"), "March fourth twenty twenty");
    EXPECT_EQ(kavi_reader_set_everyday(r.reader, KAVI_TITLES), KAVI_OK);
    EXPECT_EQ(spoken("Prof. Lee"), "professor Lee");
}

TEST(C, StopsWhereAHandlerSaysSo) {
    const Reader r;
    const std::string text = TEXT;
    for (int left = 0; left < 4; ++left) {
        Listing each;
        each.left = left;
        const kavi_handlers handlers = listing(each);
        EXPECT_EQ(kavi_read_each(r.reader, text.data(), text.size(), 0, &handlers), KAVI_STOPPED);
    }
    const kavi_handlers none = {nullptr, nullptr, nullptr};
    EXPECT_EQ(kavi_read_each(r.reader, "a. b", 4, 0, &none), KAVI_OK);
    std::set<const void*> rooms;  // of each sentence the room of the one before
    const kavi_handlers notes = {
        [](void* user, const kavi_sentence* sentence) {
            static_cast<std::set<const void*>*>(user)->insert(sentence->words);
            return 1;
        },
        nullptr, &rooms};
    EXPECT_EQ(kavi_read_each(r.reader, "a. b. c. d. e", 13, 0, &notes), KAVI_OK);
    EXPECT_EQ(rooms.size(), 1U);
    const kavi_handlers throws = {[](void*, const kavi_sentence*) -> int { throw 1; }, nullptr,
                                  nullptr};
    EXPECT_EQ(kavi_read_each(r.reader, "a. b", 4, 0, &throws), KAVI_STOPPED);
}

TEST(C, IsBusyWhileItReads) {
    const Reader r;
    static std::vector<kavi_status> answers;
    const kavi_handlers handlers = {
        [](void* user, const kavi_sentence*) {
            auto* reader = static_cast<kavi_reader*>(user);
            kavi_result* result = nullptr;
            char* spoken = nullptr;
            const kavi_handlers none = {nullptr, nullptr, nullptr};
            answers = {kavi_read(reader, "a", 1, 0, &result),
                       kavi_read_each(reader, "a", 1, 0, &none),
                       kavi_normalize(reader, "a", 1, KAVI_PLAIN, &spoken, nullptr),
                       kavi_reader_set_lexicon(reader, nullptr, nullptr, 0),
                       kavi_reader_set_everyday(reader, 0)};
            return 1;
        },
        nullptr, r.reader};
    EXPECT_EQ(kavi_read_each(r.reader, "a", 1, 0, &handlers), KAVI_OK);
    EXPECT_EQ(answers, std::vector<kavi_status>(5, KAVI_BUSY));
}

TEST(C, RefusesArgumentsWithoutAMeaning) {
    const Reader r;
    std::size_t lengths[] = {9, 9, 9};
    auto* result = reinterpret_cast<kavi_result*>(lengths);  // any pointer but null
    auto* spoken = reinterpret_cast<char*>(lengths);
    const kavi_handlers none = {nullptr, nullptr, nullptr};
    const kavi_status answers[] = {
        kavi_reader_new(0, nullptr),
        kavi_read(nullptr, "a", 1, 0, &result),
        kavi_read(r.reader, nullptr, 1, 0, &result),
        kavi_read(r.reader, "a", 1, 2, &result),
        kavi_read(r.reader, "a", 1, 0, nullptr),
        kavi_read_each(r.reader, "a", 1, 0, nullptr),
        kavi_read_each(nullptr, "a", 1, 0, &none),
        kavi_normalize(r.reader, "a", 1, 2, &spoken, &lengths[0]),
        kavi_normalize(r.reader, "a", 1, KAVI_PLAIN, nullptr, &lengths[1]),
        kavi_normalize(nullptr, "a", 1, KAVI_PLAIN, &spoken, &lengths[2]),
        kavi_reader_set_lexicon(nullptr, "", "", 0),
        kavi_reader_set_lexicon(r.reader, "", nullptr, 1),
        kavi_reader_set_everyday(nullptr, 0),
        kavi_reader_set_everyday(r.reader, 1U << 12),
    };
    for (const kavi_status answer : answers) EXPECT_EQ(answer, KAVI_BAD_ARGUMENT);
    EXPECT_EQ(result, nullptr);
    EXPECT_EQ(spoken, nullptr);
    EXPECT_EQ(lengths[0] + lengths[1] + lengths[2], 0U);
    EXPECT_STREQ(kavi_version(), KAVI_VERSION);
    EXPECT_EQ(kavi_read(r.reader, nullptr, 0, 0, &result), KAVI_OK);
    kavi_result_free(result);
    kavi_result_free(nullptr);
    kavi_reader_free(nullptr);
    EXPECT_EQ(kavi_result_sentences(nullptr) + kavi_result_findings(nullptr), 0U);
    for (const char* name : {kavi_pause_name(99), kavi_mark_name(-1), kavi_finding_code(-1),
                             kavi_finding_message(kavi::FINDINGS),
                             kavi_attribute_name(static_cast<kavi_attribute>(7))}) {
        EXPECT_STREQ(name, "unknown");
    }
    EXPECT_EQ(kavi_everyday_class("titles"), KAVI_TITLES);
    EXPECT_EQ(kavi_everyday_class("shields"), KAVI_SHIELDS);
    for (const char* name : {"", "all", "Units", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(kavi_everyday_class(name), 0U);
    }
    EXPECT_STREQ(kavi_status_text(KAVI_BUSY), "the reader is reading");
    EXPECT_STREQ(kavi_reader_error(nullptr), "");
    EXPECT_STREQ(kavi_finding_message(0), kavi::describe(kavi::Finding::stray_closing_tag));
}

// Whichever allocation is refused: an answer, no leak, and a reader that reads afterwards.
TEST(C, AnswersThatThereIsNoMemory) {
    const std::string text = TEXT;
    int refused = 0;
    for (long n = 0; n < 5000; ++n) {
        auto* reader = reinterpret_cast<kavi_reader*>(&refused);  // any pointer but null
        auto* result = reinterpret_cast<kavi_result*>(&refused);
        auto* spoken = reinterpret_cast<char*>(&refused);
        allocations_left = n;
        const kavi_status made = kavi_reader_new(0, &reader);
        kavi_status lexicon = KAVI_NO_MEMORY;
        kavi_status read = KAVI_NO_MEMORY;
        kavi_status normalized = KAVI_NO_MEMORY;
        kavi_status streamed = KAVI_NO_MEMORY;
        kavi_stream* stream = nullptr;
        kavi_result* told = nullptr;
        if (made == KAVI_OK) {
            lexicon = kavi_reader_set_lexicon(reader, "a", "kavi\tkahvee\n", 12);
            kavi_reader_set_everyday(reader, KAVI_ALL_EVERYDAY);
            read = kavi_read(reader, text.data(), text.size(), KAVI_RUNS, &result);
            normalized =
                kavi_normalize(reader, text.data(), text.size(), KAVI_PLAIN, &spoken, nullptr);
            static_cast<void>(kavi_stream_new(reader, KAVI_RUNS, &stream));
        }
        if (stream != nullptr) streamed = kavi_stream_add(stream, text.data(), text.size(), &told);
        allocations_left = -1;
        kavi_result_free(told);
        if (stream != nullptr && streamed == KAVI_NO_MEMORY) {
            EXPECT_EQ(kavi_stream_add(stream, "a", 1, &told), KAVI_ENDED);
            EXPECT_EQ(kavi_stream_forget(stream), KAVI_OK);
            EXPECT_EQ(kavi_stream_end(stream, &told), KAVI_OK);
            EXPECT_EQ(told, nullptr);
        }
        kavi_stream_free(stream);
        EXPECT_EQ(reader == nullptr, made == KAVI_NO_MEMORY);
        if (reader != nullptr) {
            EXPECT_EQ(result == nullptr, read == KAVI_NO_MEMORY);
            EXPECT_EQ(spoken == nullptr, normalized == KAVI_NO_MEMORY);
            kavi_free(spoken);
            kavi_result_free(result);
            EXPECT_EQ(kavi_read(reader, "a", 1, 0, &result), KAVI_OK);
            kavi_result_free(result);
        }
        kavi_reader_free(reader);
        const bool is_complete =
            lexicon == KAVI_OK && read == KAVI_OK && normalized == KAVI_OK && streamed == KAVI_OK;
        if (is_complete) break;
        ++refused;
    }
    EXPECT_GT(refused, 20);
    EXPECT_LT(refused, 5000);
}

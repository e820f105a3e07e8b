#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <random>
#include <set>
#include <sstream>
#include <vector>

#include "EngLexicon.h"
#include "MemoryStack.h"
#include "TtsString.h"
#include "arena_twins.h"
#include "refused_malloc.h"
#include "table.h"

namespace kavi {
namespace {

constexpr std::size_t HUGE_SIZE = std::numeric_limits<std::size_t>::max();

TEST(Arena, KeepsItsPromisesInAnyOrder) {
    std::mt19937 random(1);
    for (const std::size_t capacity : {0U, 20000U, 300000U}) {
        std::string steps(16000, '\0');
        for (char& c : steps) c = static_cast<char>(random());
        EXPECT_EQ(broken_promise(steps, capacity), "");
    }
}

// The steps of tests/tables/arena.txt on an arena.
class Steps {
  public:
    explicit Steps(std::size_t capacity)
        : capacity_(capacity), arena_(mem_stack_create(capacity)) {}
    ~Steps() { mem_stack_destroy(arena_); }  // takes the blocks that are out with it

    // What came of a step.
    std::string take(const std::string& step) {
        const std::size_t taken = mem_stack_taken(arena_);
        std::string came = step[0] == '-' ? release(step) : request(step);
        came += ":" + std::to_string(mem_stack_used(arena_));
        if (capacity_ != 0) {
            EXPECT_LE(mem_stack_taken(arena_), 2 * capacity_ + 65536);
        }
        return mem_stack_taken(arena_) > taken ? came + "+" : came;
    }

  private:
    static std::size_t number(const char* digits, char** end) {
        return static_cast<std::size_t>(std::strtoull(digits, end, 10));
    }

    std::string request(const std::string& step) {
        const bool is_refused = step[0] == 'm';
        const tag_mem_type pool = step[0] == 'p' ? MEM_MAX_CNT : MEM_COMMON;
        char* end = nullptr;
        const std::size_t size = number(step.c_str() + (is_refused || pool != MEM_COMMON), &end);
        const std::size_t n = *end == 'x' ? number(end + 1, nullptr) : *end == '*' ? HUGE_SIZE : 1;
        std::size_t came = 0;
        std::string name = "none";
        for (; came < n; ++came) {
            RefusedMalloc refused;
            if (!is_refused) RefusedMalloc::end();
            void* block = mem_stack_request_buf(size, pool, arena_);
            RefusedMalloc::end();
            if (block == nullptr) break;
            std::memset(block, 1, size);
            const auto seen = std::find(blocks_.begin(), blocks_.end(), block);
            name = std::to_string(seen - blocks_.begin());
            if (seen == blocks_.end()) blocks_.push_back(block);
            EXPECT_TRUE(in_use_.insert(block).second) << "handed out twice: " << step;
        }
        return n == 1 ? name : "x" + std::to_string(came);
    }

    // "-5": that block; "-5+": and all after it.
    std::string release(const std::string& step) {
        char* end = nullptr;
        std::size_t i = number(step.c_str() + 1, &end);
        do {
            if (i < blocks_.size() && in_use_.erase(blocks_[i]) > 0) {
                mem_stack_release_buf(blocks_[i], 0, MEM_COMMON, arena_);
            }
        } while (*end == '+' && ++i < blocks_.size());
        return "";
    }

    std::size_t capacity_;
    mem_stack_handle arena_;
    std::vector<void*> blocks_;
    std::set<void*> in_use_;
};

TEST(Arena, GivesBlocksAsInTheTable) {
    for (const TableRow& row : read_table("arena")) {
        Steps steps(std::stoul(row[0]));
        std::istringstream in(row[1]);
        std::string came;
        for (std::string step; in >> step;) came += (came.empty() ? "" : " ") + steps.take(step);
        EXPECT_EQ(came, row[2]) << row[0] << ": " << row[1];
    }
}

TEST(Arena, AFreeBlockServesNoneOfAnotherClass) {
    for (std::size_t large = 1040; large <= 33000; large += 256) {
        mem_stack_handle arena = mem_stack_create(0);
        mem_stack_release_buf(mem_stack_request_buf(large, MEM_COMMON, arena), 0, MEM_COMMON,
                              arena);
        for (std::size_t small = 16; small <= 1024; small += 16) {
            const std::size_t used = mem_stack_used(arena);
            EXPECT_NE(mem_stack_request_buf(small, MEM_COMMON, arena), nullptr);
            EXPECT_EQ(mem_stack_used(arena), used + small + 16) << large;
        }
        mem_stack_destroy(arena);
    }
}

TEST(Arena, NoPool_IsRefused) {
    mem_stack_handle arena = mem_stack_create(0);
    for (const int no_pool : {-1, 1000, static_cast<int>(MEM_MAX_CNT)}) {
        EXPECT_EQ(mem_stack_request_buf(8, static_cast<tag_mem_type>(no_pool), arena), nullptr);
    }
    mem_stack_destroy(arena);
}

#ifndef NDEBUG
TEST(Arena, ABlockIsGivenBackOnceAndToItsArena) {
    mem_stack_handle arena = mem_stack_create(0);
    mem_stack_handle other = mem_stack_create(0);
    void* block = mem_stack_request_buf(8, MEM_COMMON, arena);
    EXPECT_DEATH(mem_stack_release_buf(block, 0, MEM_COMMON, other), "owner");
    mem_stack_release_buf(block, 0, MEM_COMMON, arena);
    EXPECT_DEATH(mem_stack_release_buf(block, 0, MEM_COMMON, arena), "owner");
    mem_stack_destroy(arena);
    mem_stack_destroy(other);
}
#endif

TEST(Arena, ThatIsNoneHasNothing) {
    RefusedMalloc refused;
    EXPECT_EQ(mem_stack_create(0), nullptr);
    refused.end();
    mem_stack_handle arena = mem_stack_create(0);
    EXPECT_EQ(mem_stack_request_buf(8, MEM_COMMON, nullptr), nullptr);
    EXPECT_EQ(mem_stack_release_buf(nullptr, 0, MEM_COMMON, arena), 0);
    EXPECT_EQ(mem_stack_used(arena) + mem_stack_peak(arena), 0U);
    EXPECT_EQ(mem_stack_release_buf(arena, 0, MEM_COMMON, nullptr), 0);
    EXPECT_EQ(mem_stack_used(nullptr) + mem_stack_peak(nullptr) + mem_stack_taken(nullptr), 0U);
    mem_stack_destroy(arena);
    mem_stack_destroy(nullptr);
}

TEST(Strings, BoundedAppendIsAllOrNothing) {
    for (const TableRow& row : read_table("bounded_appends")) {
        char text[16] = {};
        std::strcpy(text, row[0].c_str());
        const int result = safe_strncat(text, row[1].c_str(), std::stoi(row[2]), std::stoi(row[3]));
        EXPECT_EQ((TableRow{std::to_string(result), text}), (TableRow{row[4], row[5]})) << row[1];
    }
}

TEST(Strings, FormattedPrintIsAlwaysTerminated) {
    char text[8];
    EXPECT_EQ(tts_snprintf(text, 8, "</%s>", "poem"), 7);
    EXPECT_STREQ(text, "</poem>");
    EXPECT_EQ(tts_snprintf(text, 4, "<%s=", "poem"), 6);
    EXPECT_STREQ(text, "<po");
    EXPECT_EQ(tts_snprintf(text, 0, "x"), -1);
    EXPECT_STREQ(text, "<po");
}

TEST(Lexicon, KnowsNoWord) {
    char out[4] = "abc";
    EXPECT_LT(eng_lexicon_lookup("word", out, 4), 0);
    EXPECT_STREQ(out, "");
    char untouched = 'u';
    EXPECT_LT(eng_lexicon_lookup("word", &untouched, 0), 0);
    EXPECT_EQ(untouched, 'u');
}

}  // namespace
}  // namespace kavi

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
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

TEST(Arena, ABlockCostsLittleMoreThanItsSize) {
    for (const std::size_t size : {16U, 1024U, 1280U, 2048U, 32768U, 32784U}) {
        mem_stack_handle probe = mem_stack_create(0);
        EXPECT_NE(mem_stack_request_buf(size, MEM_COMMON, probe), nullptr);
        const std::size_t cost = mem_stack_used(probe);
        EXPECT_LE(cost, size + 16);
        mem_stack_destroy(probe);
        mem_stack_handle exact = mem_stack_create(cost);
        EXPECT_NE(mem_stack_request_buf(size, MEM_COMMON, exact), nullptr);
        mem_stack_destroy(exact);
    }
}

TEST(Arena, AFreeBlockServesItsOwnSizeAndPool) {
    mem_stack_handle arena = mem_stack_create(0);
    void* small = mem_stack_request_buf(16, MEM_COMMON, arena);
    const std::size_t cost = mem_stack_used(arena);
    void* larger = mem_stack_request_buf(32, MEM_COMMON, arena);
    mem_stack_release_buf(small, 0, MEM_COMMON, arena);
    mem_stack_release_buf(larger, 0, MEM_COMMON, arena);
    EXPECT_EQ(mem_stack_request_buf(16, MEM_MAX_CNT, arena), nullptr);
    EXPECT_EQ(mem_stack_request_buf(2000, MEM_MAX_CNT, arena), nullptr);
    EXPECT_EQ(mem_stack_request_buf(16, MEM_COMMON, arena), small);
    EXPECT_EQ(mem_stack_used(arena), cost);
    mem_stack_destroy(arena);
}

TEST(Arena, StartsAnewInItsFirstChunk) {
    mem_stack_handle arena = mem_stack_create(190000);
    // Each finds no room in what the last round has left, and no block that would serve.
    for (std::size_t size : {32000U, 18000U, 9000U}) {
        std::vector<void*> blocks;
        while (void* block = mem_stack_request_buf(size, MEM_COMMON, arena)) {
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % alignof(std::max_align_t), 0U);
            blocks.push_back(block);
            size = 1000;
        }
        EXPECT_GT(blocks.size(), 120U);
        for (void* block : blocks) mem_stack_release_buf(block, 0, MEM_COMMON, arena);
    }
    mem_stack_destroy(arena);
}

TEST(Arena, WhatIsLeftOfAChunkServesLater) {
    mem_stack_handle arena = mem_stack_create(0);
    EXPECT_NE(mem_stack_request_buf(45024, MEM_COMMON, arena), nullptr);
    EXPECT_NE(mem_stack_request_buf(45024, MEM_COMMON, arena), nullptr);  // of another chunk
    EXPECT_NE(mem_stack_request_buf(10000, MEM_COMMON, arena), nullptr);
    const std::size_t taken = mem_stack_taken(arena);
    EXPECT_GE(taken, mem_stack_used(arena));
    EXPECT_NE(mem_stack_request_buf(20480, MEM_COMMON, arena), nullptr);  // all of the first
    EXPECT_EQ(mem_stack_taken(arena), taken);
    mem_stack_destroy(arena);
}

TEST(Arena, AFreeLargeBlockServesAgain) {
    mem_stack_handle arena = mem_stack_create(0);
    void* block = mem_stack_request_buf(50000, MEM_COMMON, arena);
    const std::size_t cost = mem_stack_used(arena);
    for (const std::size_t size : {50000U, 45000U}) {
        mem_stack_release_buf(block, 0, MEM_COMMON, arena);
        EXPECT_EQ(mem_stack_request_buf(size, MEM_COMMON, arena), block);
        EXPECT_EQ(mem_stack_used(arena), cost);
    }
    mem_stack_destroy(arena);
}

TEST(Arena, AFreeBlockServesWhatIsALittleSmaller) {
    mem_stack_handle arena = mem_stack_create(0);
    void* block = mem_stack_request_buf(5120, MEM_COMMON, arena);
    const std::size_t cost = mem_stack_used(arena);
    for (const std::size_t size : {5000U, 4000U, 3500U}) {
        mem_stack_release_buf(block, 0, MEM_COMMON, arena);
        EXPECT_EQ(mem_stack_request_buf(size, MEM_COMMON, arena), block) << size;
        EXPECT_EQ(mem_stack_used(arena), cost) << size;
    }
    mem_stack_release_buf(block, 0, MEM_COMMON, arena);
    EXPECT_NE(mem_stack_request_buf(3000, MEM_COMMON, arena), block);
    EXPECT_LT(mem_stack_used(arena), 3500U);
    mem_stack_destroy(arena);
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

// What was given back in one size is to be had in another, and nothing more is taken for it.
TEST(Arena, FreeNeighboursBecomeOneBlock) {
    mem_stack_handle arena = mem_stack_create(0);
    std::vector<void*> blocks;
    for (int i = 0; i < 1000; ++i) blocks.push_back(mem_stack_request_buf(100, MEM_COMMON, arena));
    const std::size_t taken = mem_stack_taken(arena);
    EXPECT_LE(taken, 300000U);
    for (std::size_t i = 10; i < 1000; ++i) {
        mem_stack_release_buf(blocks[i], 0, MEM_COMMON, arena);
    }
    for (const std::size_t size : {50000U, 1000U, 3000U, 200U, 40000U}) {
        void* block = mem_stack_request_buf(size, MEM_COMMON, arena);
        ASSERT_NE(block, nullptr);
        std::memset(block, 1, size);
        mem_stack_release_buf(block, size, MEM_COMMON, arena);
        EXPECT_EQ(mem_stack_taken(arena), taken) << size;
    }
    mem_stack_destroy(arena);
    EXPECT_EQ(mem_stack_taken(nullptr), 0U);
}

TEST(Arena, CapacityBoundsWhatIsInUseAndRefusalHarmsNothing) {
    for (const std::size_t size : {std::size_t{1}, std::size_t{500}, std::size_t{40000}}) {
        mem_stack_handle arena = mem_stack_create(100000);
        std::vector<void*> blocks;
        while (void* p = mem_stack_request_buf(size, MEM_COMMON, arena)) {
            std::memset(p, 1, size);
            blocks.push_back(p);
        }
        EXPECT_LE(mem_stack_used(arena), 100000U);
        EXPECT_GT(mem_stack_used(arena) + size + 1100, 100000U) << "refused long before the end";
        mem_stack_release_buf(blocks.back(), size, MEM_COMMON, arena);
        blocks.back() = mem_stack_request_buf(size, MEM_COMMON, arena);
        EXPECT_NE(blocks.back(), nullptr) << "usable again after a refusal";
        mem_stack_destroy(arena);  // takes the blocks that are out with it
    }
}

// In each chunk, a small block that stays out cuts what is free into pieces that are too small for
// the next.
TEST(Arena, TakesNoMoreThanIsPromisedAndHandsNothingOutTwice) {
    constexpr std::size_t CAPACITY = 100000;
    mem_stack_handle arena = mem_stack_create(CAPACITY);
    std::size_t size = 33000;
    for (; void* block = mem_stack_request_buf(size, MEM_COMMON, arena); size += 1000) {
        EXPECT_NE(mem_stack_request_buf(40, MEM_COMMON, arena), nullptr);
        mem_stack_release_buf(block, 0, MEM_COMMON, arena);
        ASSERT_LE(mem_stack_taken(arena), 2 * CAPACITY + 65536);
        ASSERT_LT(size, 60000U);
    }
    EXPECT_GT(size, 35000U);
    std::vector<void*> blocks;
    while (void* block = mem_stack_request_buf(100, MEM_COMMON, arena)) {
        blocks.push_back(std::memset(block, 1, 100));
    }
    EXPECT_GT(blocks.size(), 770U);
    std::sort(blocks.begin(), blocks.end());
    EXPECT_EQ(std::adjacent_find(blocks.begin(), blocks.end()), blocks.end());
    mem_stack_destroy(arena);
}

TEST(Arena, AFreeBlockIsRefusedWhereTheCapacityEnds) {
    mem_stack_handle arena = mem_stack_create(120);
    void* block = mem_stack_request_buf(32, MEM_COMMON, arena);
    mem_stack_release_buf(block, 32, MEM_COMMON, arena);
    EXPECT_NE(mem_stack_request_buf(64, MEM_COMMON, arena), nullptr);
    EXPECT_EQ(mem_stack_request_buf(32, MEM_COMMON, arena), nullptr);
    mem_stack_destroy(arena);
}

TEST(Arena, RefusesWhatCannotBeHad) {
    mem_stack_handle arena = mem_stack_create(0);
    EXPECT_EQ(mem_stack_request_buf(HUGE_SIZE, MEM_COMMON, arena), nullptr);
    EXPECT_EQ(mem_stack_request_buf(HUGE_SIZE / 2, MEM_COMMON, arena), nullptr);
    EXPECT_EQ(mem_stack_request_buf(8, MEM_MAX_CNT, arena), nullptr);
    EXPECT_EQ(mem_stack_request_buf(8, MEM_COMMON, nullptr), nullptr);
    EXPECT_EQ(mem_stack_release_buf(nullptr, 0, MEM_COMMON, arena), 0);
    EXPECT_EQ(mem_stack_used(arena), 0U);
    EXPECT_EQ(mem_stack_peak(arena), 0U);
    void* nothing = mem_stack_request_buf(0, MEM_COMMON, arena);
    EXPECT_NE(nothing, nullptr);
    EXPECT_EQ(mem_stack_release_buf(nothing, 0, MEM_COMMON, arena), 0);
    mem_stack_destroy(arena);
    mem_stack_destroy(nullptr);
    EXPECT_EQ(mem_stack_used(nullptr) + mem_stack_peak(nullptr), 0U);
    EXPECT_EQ(mem_stack_release_buf(arena, 0, MEM_COMMON, nullptr), 0);
}

TEST(Arena, OutlivesASystemWithoutMemory) {
    RefusedMalloc refused;
    EXPECT_EQ(mem_stack_create(0), nullptr);
    refused.end();
    mem_stack_handle arena = mem_stack_create(0);
    for (const std::size_t size : {std::size_t{8}, std::size_t{400000}}) {
        refused.begin();
        EXPECT_EQ(mem_stack_request_buf(size, MEM_COMMON, arena), nullptr);
        refused.end();
        EXPECT_EQ(mem_stack_used(arena), 0U);
        void* block = mem_stack_request_buf(size, MEM_COMMON, arena);
        EXPECT_NE(block, nullptr) << "usable again";
        mem_stack_release_buf(block, size, MEM_COMMON, arena);
    }
    mem_stack_destroy(arena);
    // Neighbours become one block before a request is refused for want of memory.
    arena = mem_stack_create(0);
    std::vector<void*> blocks;
    for (int i = 0; i < 64; ++i) blocks.push_back(mem_stack_request_buf(1000, MEM_COMMON, arena));
    for (const unsigned i : {10U, 11U, 12U}) mem_stack_release_buf(blocks[i], 0, MEM_COMMON, arena);
    refused.begin();
    EXPECT_EQ(mem_stack_request_buf(20000, MEM_COMMON, arena), nullptr);
    EXPECT_NE(mem_stack_request_buf(2500, MEM_COMMON, arena), nullptr);
    EXPECT_EQ(mem_stack_request_buf(20000, MEM_COMMON, arena), nullptr);
    refused.end();
    mem_stack_destroy(arena);
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

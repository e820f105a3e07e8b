// Size classes with free lists over chunks.
//
// A block is a header and its bytes. A released block goes to the free list of its class, so a
// request and a release are a few instructions in any order. A class without a free block has one
// carved from the current region of a chunk. When that is used up, and half of all chunks is free
// or no further chunk may be taken, free neighbours are merged into regions again: so a block of
// one class can become one of another, and what is taken from the system stays in proportion to
// what is in use.

#include "MemoryStack.h"

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <new>

namespace kavi {

namespace {

constexpr std::size_t ALIGNMENT = alignof(std::max_align_t);
// Classes of 16, 32, ... 1024 bytes, then four to every doubling up to 32768.
constexpr std::size_t SMALL_STEP = 16;
constexpr std::size_t SMALL_MAX = 1024;
constexpr int SMALL_SHIFT = 8;  // of a quarter of SMALL_MAX
constexpr std::size_t CLASS_MAX = 32768;
constexpr std::size_t SMALL_CLASSES = SMALL_MAX / SMALL_STEP;
constexpr std::size_t CLASSES = SMALL_CLASSES + std::size_t{4} * 5;
constexpr std::size_t CLASSES_SERVING = 3;  // a larger request: its own, and the next two
constexpr std::size_t REQUEST_MAX = std::numeric_limits<std::size_t>::max() / 4;  // of any memory
constexpr std::size_t NO_LIMIT = std::numeric_limits<std::size_t>::max() - 1;  // below list_end's
constexpr std::size_t CHUNK_BYTES = std::size_t{64} * 1024;

static_assert(std::size_t{4} << SMALL_SHIFT == SMALL_MAX);
static_assert(SMALL_MAX << 5 == CLASS_MAX, "five doublings of four classes each");
static_assert(SMALL_STEP % ALIGNMENT == 0, "every class keeps the alignment");

// In front of every piece of a chunk, whether it is in use or not.
struct alignas(std::max_align_t) BlockHeader {
    std::size_t cost;          // the bytes of the piece, this header included
    std::uint16_t size_class;  // CLASSES for a large block
    std::uint16_t
        is_free;  // of regions; of blocks in a free list, only while neighbours are merged
#ifndef NDEBUG
    std::uint32_t owner = 0;  // of a block that is out: tells its arena from others
#endif
};

// In the bytes of a released block or a free region, which nobody uses now.
struct FreeBlock {
    FreeBlock* next;

    BlockHeader& header() { return reinterpret_cast<BlockHeader*>(this)[-1]; }
};

static_assert(sizeof(FreeBlock) <= SMALL_STEP, "the link fits every class");

// What a piece has, to be a region.
constexpr std::size_t REGION_MIN = sizeof(BlockHeader) + sizeof(FreeBlock);

struct alignas(std::max_align_t) Chunk {
    Chunk* next;
    std::size_t bytes;  // after this record; all of them belong to pieces

    char* begin() { return reinterpret_cast<char*>(this + 1); }
    char* end() { return begin() + bytes; }
};

constexpr std::size_t round_up(std::size_t n, std::size_t step) {
    return (n + step - 1) / step * step;
}

// The class of a request of `size` bytes, and the bytes of that class. CLASSES: too large for any.
struct SizeClass {
    std::size_t index;
    std::size_t bytes;
};

SizeClass class_of(std::size_t size) {
    if (size <= SMALL_MAX) {
        const std::size_t steps = size == 0 ? 1 : (size + SMALL_STEP - 1) / SMALL_STEP;
        return {steps - 1, steps * SMALL_STEP};
    }
    if (size > CLASS_MAX) return {CLASSES, round_up(size, ALIGNMENT)};
    const unsigned long last = static_cast<unsigned long>(size - 1);
    const int top_bit = std::numeric_limits<unsigned long>::digits - 1 - __builtin_clzl(last);
    const int shift = top_bit - 2;
    const std::size_t quarters = (last >> shift) + 1;  // of the doubling: five to eight
    const auto doubling = static_cast<std::size_t>(shift - SMALL_SHIFT);
    return {SMALL_CLASSES + 4 * doubling + quarters - 5, quarters << shift};
}

}  // namespace

struct tag_mem_stack_array {
    FreeBlock* free_list[CLASSES + 1];  // the last one is that of large blocks, of any size
    std::size_t capacity;               // at most NO_LIMIT
    std::size_t peak;                   // the most bytes that have been in use
    std::size_t below_peak;             // the peak less the bytes in use now
    Chunk* chunks;
    std::size_t taken;  // from the system, for chunks
    char* carve_begin;  // the region at hand
    char* carve_end;
    FreeBlock* regions;  // the others

    // Ends every free list: a block that costs more than any request finds room for.
    BlockHeader list_end_header;
    FreeBlock list_end;

    std::size_t used() const { return peak - below_peak; }
};

static_assert(offsetof(tag_mem_stack_array, list_end) ==
              offsetof(tag_mem_stack_array, list_end_header) + sizeof(BlockHeader));

namespace {

void unlink_first(FreeBlock** link) {
    *link = (*link)->next;
}

// Where assertions are on, a block that is given back twice, or to another arena, is noticed: it
// would be handed out twice.
#ifndef NDEBUG
std::uint32_t owner_of(const tag_mem_stack_array& arena) {
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(&arena) / ALIGNMENT);
}
#endif

void* hand_out(void* block, [[maybe_unused]] const tag_mem_stack_array& arena) {
#ifndef NDEBUG
    if (block != nullptr) static_cast<BlockHeader*>(block)[-1].owner = owner_of(arena);
#endif
    return block;
}

void take_back([[maybe_unused]] BlockHeader& block,
               [[maybe_unused]] const tag_mem_stack_array& arena) {
#ifndef NDEBUG
    assert(block.owner == owner_of(arena));
    block.owner = 0;
#endif
}

// Makes what is left of the region at hand one of the others.
void put_region_back(tag_mem_stack_array& arena) {
    const auto bytes = static_cast<std::size_t>(arena.carve_end - arena.carve_begin);
    if (bytes > 0) {
        auto* header = new (arena.carve_begin) BlockHeader{bytes, 0, 1};
        if (bytes >= REGION_MIN) arena.regions = new (header + 1) FreeBlock{arena.regions};
    }
    arena.carve_begin = arena.carve_end;
}

// Makes the first region with room for `cost` bytes the one at hand.
bool find_region(tag_mem_stack_array& arena, std::size_t cost) {
    for (FreeBlock** link = &arena.regions; *link != nullptr; link = &(*link)->next) {
        FreeBlock* region = *link;
        const std::size_t has = region->header().cost;
        if (has < cost) continue;
        unlink_first(link);
        arena.carve_begin = reinterpret_cast<char*>(&region->header());
        arena.carve_end = arena.carve_begin + has;
        return true;
    }
    return false;
}

// Makes regions of all that is free in a chunk, appended at `link`; where the next goes.
FreeBlock** merge_chunk(Chunk& chunk, FreeBlock** link) {
    for (char* at = chunk.begin(); at < chunk.end();) {
        auto* piece = reinterpret_cast<BlockHeader*>(at);
        at += piece->cost;
        if (piece->is_free == 0) continue;
        for (; at < chunk.end() && reinterpret_cast<BlockHeader*>(at)->is_free != 0;) {
            const std::size_t cost = reinterpret_cast<BlockHeader*>(at)->cost;
            piece->cost += cost;
            at += cost;
        }
        if (piece->cost < REGION_MIN) continue;
        auto* region = new (piece + 1) FreeBlock;
        *link = region;
        link = &region->next;
    }
    return link;
}

// Whether something was released since neighbours were merged, and is free still.
bool may_merge(const tag_mem_stack_array& arena) {
    const auto is_empty = [&](const FreeBlock* list) { return list == &arena.list_end; };
    return !std::all_of(std::begin(arena.free_list), std::end(arena.free_list), is_empty);
}

// Makes every free list empty; its blocks are marked as free.
void empty_free_lists(tag_mem_stack_array& arena) {
    for (FreeBlock*& list : arena.free_list) {
        for (; list != &arena.list_end; list = list->next) list->header().is_free = 1;
    }
}

void merge_neighbours(tag_mem_stack_array& arena) {
    empty_free_lists(arena);
    FreeBlock** link = &arena.regions;
    for (Chunk* chunk = arena.chunks; chunk != nullptr; chunk = chunk->next) {
        link = merge_chunk(*chunk, link);
    }
    *link = nullptr;
}

// A chunk with room for `cost` bytes, as far as the capacity lets the arena take one.
bool take_chunk(tag_mem_stack_array& arena, std::size_t cost) {
    const std::size_t usual = std::max(CHUNK_BYTES, round_up(arena.taken / 4, ALIGNMENT));
    std::size_t bytes = std::max(cost, usual);
    if (arena.capacity < REQUEST_MAX) {
        const std::size_t most = 2 * arena.capacity + CHUNK_BYTES - arena.taken;
        if (most < sizeof(Chunk) + cost) return false;
        const std::size_t room = (most - sizeof(Chunk)) / ALIGNMENT * ALIGNMENT;
        const std::size_t all = std::max(cost, round_up(arena.capacity, ALIGNMENT));
        bytes = std::min({bytes, room, all});
    }
    void* memory = std::malloc(sizeof(Chunk) + bytes);
    if (memory == nullptr) return false;
    auto* chunk = new (memory) Chunk{arena.chunks, bytes};
    arena.chunks = chunk;
    arena.taken += sizeof(Chunk) + bytes;
    arena.carve_begin = chunk->begin();
    arena.carve_end = chunk->end();
    return true;
}

// Makes a region with room for `cost` bytes the one at hand.
bool find_room(tag_mem_stack_array& arena, std::size_t cost) {
    put_region_back(arena);
    if (find_region(arena, cost)) return true;
    if (arena.used() <= arena.taken / 2 && may_merge(arena)) {
        merge_neighbours(arena);
        if (find_region(arena, cost)) return true;
    }
    if (take_chunk(arena, cost)) return true;
    if (!may_merge(arena)) return false;
    merge_neighbours(arena);
    return find_region(arena, cost);
}

BlockHeader* carve(tag_mem_stack_array& arena, std::size_t cost, std::size_t size_class) {
    const auto room = static_cast<std::size_t>(arena.carve_end - arena.carve_begin);
    if (room < cost && !find_room(arena, cost)) return nullptr;
    char* memory = arena.carve_begin;
    arena.carve_begin += cost;
    return new (memory) BlockHeader{cost, static_cast<std::uint16_t>(size_class), 0};
}

// A free block for a request that costs `cost`: of its class, or a large one that is not much
// larger. Null when there is none.
BlockHeader* reuse(tag_mem_stack_array& arena, std::size_t size_class, std::size_t cost) {
    const std::size_t left = arena.capacity - arena.used();
    for (FreeBlock** link = &arena.free_list[size_class]; *link != &arena.list_end;
         link = &(*link)->next) {
        FreeBlock* block = *link;
        const std::size_t has = block->header().cost;
        if (has < cost || has - cost > cost / 4 || has > left) continue;
        unlink_first(link);
        return &block->header();
    }
    return nullptr;
}

}  // namespace

mem_stack_handle mem_stack_create(std::size_t n_capacity) {
    void* memory = std::malloc(sizeof(mem_stack_array));
    if (memory == nullptr) return nullptr;
    auto* arena = new (memory) mem_stack_array{};
    arena->capacity = n_capacity != 0 ? std::min(n_capacity, NO_LIMIT) : NO_LIMIT;
    arena->list_end_header.cost = std::numeric_limits<std::size_t>::max();
    std::fill(std::begin(arena->free_list), std::end(arena->free_list), &arena->list_end);
    return arena;
}

void mem_stack_destroy(mem_stack_handle arena) {
    if (arena == nullptr) return;
    for (Chunk* chunk = arena->chunks; chunk != nullptr;) {
        Chunk* next = chunk->next;
        std::free(chunk);
        chunk = next;
    }
    std::free(arena);
}

std::size_t mem_stack_used(mem_stack_handle arena) {
    return arena != nullptr ? arena->used() : 0;
}

std::size_t mem_stack_peak(mem_stack_handle arena) {
    return arena != nullptr ? arena->peak : 0;
}

std::size_t mem_stack_taken(mem_stack_handle arena) {
    return arena != nullptr ? arena->taken : 0;
}

namespace {

// The first free block of a class of one size, when no fewer bytes have been in use before: one
// comparison tells both, and that the capacity is not reached. Else null.
inline void* take_free(tag_mem_stack_array& arena, std::size_t index) {
    FreeBlock* block = arena.free_list[index];
    std::size_t below_peak = 0;
    if (__builtin_sub_overflow(arena.below_peak, block->header().cost, &below_peak)) return nullptr;
    arena.below_peak = below_peak;
    arena.free_list[index] = block->next;
    return block;
}

// Serves a request for which there is no such block. Out of line, so that the others do not pay for
// its registers.
__attribute__((noinline)) void* serve(std::size_t size, tag_mem_stack_array& arena) {
    const SizeClass wanted = class_of(size);
    const std::size_t left = arena.capacity - arena.used();
    if (size > std::min(left, REQUEST_MAX)) return nullptr;
    const std::size_t cost = wanted.bytes + sizeof(BlockHeader);
    if (cost > left) return nullptr;
    BlockHeader* block = reuse(arena, wanted.index, cost);
    if (block == nullptr) block = carve(arena, cost, wanted.index);
    if (block == nullptr) return nullptr;
    const std::size_t used = arena.used() + block->cost;
    arena.peak = std::max(arena.peak, used);
    arena.below_peak = arena.peak - used;
    return block + 1;
}

// Serves a request for more than a small block. Texts differ in length: a free block that is at
// most half as large again is better than one cut anew, for which all that is free may have to be
// merged.
__attribute__((noinline)) void* request_large(std::size_t size, tag_mem_stack_array& arena) {
    const std::size_t first = class_of(size).index;
    const std::size_t end = std::min(first + CLASSES_SERVING, CLASSES);
    for (std::size_t index = first; index < end; ++index) {
        if (void* block = take_free(arena, index)) return block;
    }
    return serve(size, arena);
}

}  // namespace

// The usual request is for a small block.
void* mem_stack_request_buf(std::size_t size, tag_mem_type type, mem_stack_handle arena) {
    if (arena == nullptr || static_cast<unsigned>(type) >= MEM_MAX_CNT) return nullptr;
    const std::size_t index = (size - 1) / SMALL_STEP;  // of 0 bytes: no small class
    if (index >= SMALL_CLASSES) return hand_out(request_large(size, *arena), *arena);
    void* block = take_free(*arena, index);
    return hand_out(block != nullptr ? block : serve(size, *arena), *arena);
}

int mem_stack_release_buf(void* p, std::size_t /*size*/, tag_mem_type /*type*/,
                          mem_stack_handle arena) {
    if (p == nullptr || arena == nullptr) return 0;
    BlockHeader& header = static_cast<BlockHeader*>(p)[-1];
    take_back(header, *arena);
    FreeBlock*& free_list = arena->free_list[header.size_class];
    arena->below_peak += header.cost;
    free_list = new (p) FreeBlock{free_list};
    return 0;
}

}  // namespace kavi

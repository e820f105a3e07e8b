// The arena: a free list for each size class, over chunks taken from the system.
//
// A block is a header followed by its bytes. A released block goes to the free list of its class,
// so that a request or a release takes a few instructions, in any order. When the list of a class
// is empty, a block is carved from the current region, a free part of a chunk. When no region has
// room, free neighbours are merged into regions if at least half of the chunks is free, or if no
// further chunk may be taken. So memory of one class can serve another, and the memory taken from
// the system stays proportional to the memory in use.

#include "MemoryStack.h"

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <new>

#include "kavi_compiler.h"

namespace kavi {

namespace {

constexpr std::size_t ALIGNMENT = alignof(std::max_align_t);
// The classes: 16, 32, ... 1024 bytes, then four for each doubling up to 32768.
constexpr std::size_t SMALL_STEP = 16;
constexpr std::size_t SMALL_MAX = 1024;
constexpr int SMALL_SHIFT = 8;  // SMALL_MAX / 4 == 1 << SMALL_SHIFT
constexpr std::size_t CLASS_MAX = 32768;
constexpr std::size_t SMALL_CLASSES = SMALL_MAX / SMALL_STEP;
constexpr std::size_t CLASSES = SMALL_CLASSES + std::size_t{4} * 5;
// A request above SMALL_MAX may get a free block of its own class or of the next two.
constexpr std::size_t CLASSES_SERVING = 3;
// Larger requests are refused, so that sums of sizes cannot overflow.
constexpr std::size_t REQUEST_MAX = std::numeric_limits<std::size_t>::max() / 4;
// The capacity of an arena without a limit: less than the cost of the sentinel `list_end`.
constexpr std::size_t NO_LIMIT = std::numeric_limits<std::size_t>::max() - 1;
constexpr std::size_t CHUNK_BYTES = std::size_t{64} * 1024;

static_assert(std::size_t{4} << SMALL_SHIFT == SMALL_MAX);
static_assert(SMALL_MAX << 5 == CLASS_MAX, "five doublings of four classes each");
static_assert(SMALL_STEP % ALIGNMENT == 0, "every class keeps the alignment");

// Precedes every piece of a chunk, in use or free. `cost` leads to the next piece.
struct alignas(std::max_align_t) BlockHeader {
    std::size_t cost;          // bytes of the piece, including this header
    std::uint16_t size_class;  // CLASSES for a large block
    std::uint16_t is_free;     // 1 for a region; for a block in a free list, during a merge only
#ifndef NDEBUG
    std::uint32_t owner = 0;  // of a block in use: identifies its arena
#endif
};

// A link of a list, stored in the bytes of a free block or region.
struct FreeBlock {
    FreeBlock* next;

    BlockHeader& header() { return reinterpret_cast<BlockHeader*>(this)[-1]; }
};

static_assert(sizeof(FreeBlock) <= SMALL_STEP, "the link fits every class");

// The least cost of a region. A smaller free piece is in no list until a merge enlarges it.
constexpr std::size_t REGION_MIN = sizeof(BlockHeader) + sizeof(FreeBlock);

struct alignas(std::max_align_t) Chunk {
    Chunk* next;
    std::size_t bytes;  // after this header: pieces, and the current region

    char* begin() { return reinterpret_cast<char*>(this + 1); }
    char* end() { return begin() + bytes; }
};

constexpr std::size_t round_up(std::size_t n, std::size_t step) {
    return (n + step - 1) / step * step;
}

// A size class and the bytes of its blocks. The index of blocks too large for a class is CLASSES.
struct SizeClass {
    std::size_t index;
    std::size_t bytes;
};

// The class that serves a request of `size` bytes. Above SMALL_MAX, a doubling from 2^k has classes
// of 5, 6, 7 and 8 quarters of 2^k: 1,025 bytes get 5 quarters of 1,024, which are 1,280.
SizeClass class_of(std::size_t size) {
    if (size <= SMALL_MAX) {
        const std::size_t steps = size == 0 ? 1 : (size + SMALL_STEP - 1) / SMALL_STEP;
        return {steps - 1, steps * SMALL_STEP};
    }
    if (size > CLASS_MAX) return {CLASSES, round_up(size, ALIGNMENT)};
    const unsigned long last = static_cast<unsigned long>(size - 1);
    const int shift = highest_bit(last) - 2;
    const std::size_t quarters = (last >> shift) + 1;
    const auto doubling = static_cast<std::size_t>(shift - SMALL_SHIFT);
    return {SMALL_CLASSES + 4 * doubling + quarters - 5, quarters << shift};
}

}  // namespace

struct tag_mem_stack_array {
    FreeBlock* free_list[CLASSES + 1];  // by class; the last one: larger blocks of any size
    std::size_t capacity;               // at most NO_LIMIT
    std::size_t peak;                   // the most bytes ever in use
    std::size_t below_peak;             // peak - bytes in use now
    Chunk* chunks;
    std::size_t taken;  // bytes of all chunks, with their headers
    char* carve_begin;  // the current region, from which blocks are carved
    char* carve_end;
    FreeBlock* regions;  // the other regions

    // The sentinel that ends every free list. No capacity covers its cost, so take_free refuses it.
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

// With assertions on, releasing a block twice or to a foreign arena fails an assertion. Without
// them the block would be handed out twice.
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

// Moves what is left of the current region to the list of regions. Less than REGION_MIN is only
// marked as free.
void put_region_back(tag_mem_stack_array& arena) {
    const auto bytes = static_cast<std::size_t>(arena.carve_end - arena.carve_begin);
    if (bytes > 0) {
        auto* header = new (arena.carve_begin) BlockHeader{bytes, 0, 1};
        if (bytes >= REGION_MIN) arena.regions = new (header + 1) FreeBlock{arena.regions};
    }
    arena.carve_begin = arena.carve_end;
}

// Makes the first region with room for `cost` bytes the current one. False when there is none.
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

// Merges free neighbours in a chunk and appends the regions to the list that ends at `link`.
// Returns the link that ends the list now.
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

// Whether any free list holds a block. Otherwise a merge finds nothing new.
bool may_merge(const tag_mem_stack_array& arena) {
    const auto is_empty = [&](const FreeBlock* list) { return list == &arena.list_end; };
    return !std::all_of(std::begin(arena.free_list), std::end(arena.free_list), is_empty);
}

// Empties the free lists and marks their blocks as free.
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

// Takes a chunk with room for `cost` bytes and makes it the current region. False when the system
// refuses it, or when the arena would take more than twice its capacity and CHUNK_BYTES.
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

// Makes a region with room for `cost` bytes the current one: one that exists, one that a merge
// yields, or a new chunk.
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

// Unlinks a free block of a class for a request that costs `cost`. A large one may cost a quarter
// more. Null when there is none that the capacity covers.
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

// The first free block of a class of one size, or null. One subtraction decides: it overflows when
// the list is empty, since the sentinel has the largest cost, and when the bytes in use would
// exceed the peak. Up to the peak, the capacity needs no check.
inline void* take_free(tag_mem_stack_array& arena, std::size_t index) {
    FreeBlock* block = arena.free_list[index];
    std::size_t below_peak = 0;
    if (subtract_overflows(arena.below_peak, block->header().cost, below_peak)) return nullptr;
    arena.below_peak = below_peak;
    arena.free_list[index] = block->next;
    return block;
}

// Serves a request that take_free cannot. Out of line, so that the fast path does not save
// registers for it.
KAVI_NOINLINE void* serve(std::size_t size, tag_mem_stack_array& arena) {
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

// Serves a request above SMALL_MAX. The lengths of texts, and so of these blocks, vary: a free
// block of one of the next two classes (at most half as large again) is cheaper than a new one, for
// which a merge may be needed.
KAVI_NOINLINE void* request_large(std::size_t size, tag_mem_stack_array& arena) {
    const std::size_t first = class_of(size).index;
    const std::size_t end = std::min(first + CLASSES_SERVING, CLASSES);
    for (std::size_t index = first; index < end; ++index) {
        if (void* block = take_free(arena, index)) return block;
    }
    return serve(size, arena);
}

}  // namespace

void* mem_stack_request_buf(std::size_t size, tag_mem_type type, mem_stack_handle arena) {
    if (arena == nullptr || static_cast<unsigned>(type) >= MEM_MAX_CNT) return nullptr;
    const std::size_t index = (size - 1) / SMALL_STEP;  // wraps around for 0 bytes: no small class
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

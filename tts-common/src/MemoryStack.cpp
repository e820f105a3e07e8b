// Size classes with free lists over chunks.
//
// A block is a header and its bytes. A released block goes to the free list of its class, so a
// request and a release are a few instructions in any order. A class without a free block carves
// one from the current chunk; when that is used up and everything has been given back, the arena
// rewinds to its first chunk, so a host that works sentence by sentence settles on a few chunks.
// Blocks above the largest class are had from and given back to the system one by one.

#include "MemoryStack.h"

#include <algorithm>
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
constexpr std::size_t SMALL_SHIFT = 8;  // of a quarter of SMALL_MAX
constexpr std::size_t CLASS_MAX = 32768;
constexpr std::size_t SMALL_CLASSES = SMALL_MAX / SMALL_STEP;
constexpr std::size_t CLASSES = SMALL_CLASSES + std::size_t{4} * 5;
constexpr std::size_t REQUEST_MAX = std::numeric_limits<std::size_t>::max() / 4;  // of any memory
constexpr std::size_t CHUNK_BYTES = std::size_t{64} * 1024;

static_assert(std::size_t{4} << SMALL_SHIFT == SMALL_MAX);
static_assert(SMALL_MAX << 5 == CLASS_MAX, "five doublings of four classes each");
static_assert(SMALL_STEP % ALIGNMENT == 0, "every class keeps the alignment");

struct alignas(std::max_align_t) BlockHeader {
    std::size_t cost;        // what the block counts for: its bytes and its book-keeping
    std::size_t size_class;  // CLASSES for a large block
};

// A released block; the link stands in the bytes that nobody uses now.
struct FreeBlock {
    BlockHeader header;
    FreeBlock* next;
};

struct LargeBlock {
    LargeBlock* next;
    LargeBlock** link;  // where the pointer to this block stands
    BlockHeader header;
};

static_assert(sizeof(FreeBlock) <= sizeof(BlockHeader) + SMALL_STEP, "the link fits every class");
static_assert(sizeof(LargeBlock) == offsetof(LargeBlock, header) + sizeof(BlockHeader),
              "the user's bytes begin right behind the header");

struct alignas(std::max_align_t) Chunk {
    Chunk* next;
    std::size_t bytes;  // behind this record
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
    std::size_t shift = SMALL_SHIFT;
    while (size > std::size_t{8} << shift) ++shift;
    const std::size_t quarters = ((size - 1) >> shift) + 1;  // of the doubling: five to eight
    return {SMALL_CLASSES + 4 * (shift - SMALL_SHIFT) + quarters - 5, quarters << shift};
}

}  // namespace

struct tag_mem_stack_array {
    FreeBlock* free_list[CLASSES];
    std::size_t capacity;
    std::size_t left;        // of the capacity
    std::size_t least_left;  // at any time
    Chunk* first_chunk;
    Chunk* chunk;            // the one being carved
    std::size_t chunk_used;  // bytes carved from it
    LargeBlock* large;
};

namespace {

BlockHeader* new_large(tag_mem_stack_array& arena, std::size_t cost) {
    void* memory = std::malloc(cost);
    if (memory == nullptr) return nullptr;
    auto* block = new (memory) LargeBlock{arena.large, &arena.large, {cost, CLASSES}};
    if (arena.large != nullptr) arena.large->link = &block->next;
    arena.large = block;
    return &block->header;
}

void free_large(LargeBlock* block) {
    *block->link = block->next;
    if (block->next != nullptr) block->next->link = block->link;
    std::free(block);
}

LargeBlock* large_block(BlockHeader* header) {
    return reinterpret_cast<LargeBlock*>(reinterpret_cast<char*>(header) -
                                         offsetof(LargeBlock, header));
}

BlockHeader* reuse(tag_mem_stack_array& arena, std::size_t size_class) {
    FreeBlock* block = arena.free_list[size_class];
    arena.free_list[size_class] = block->next;
    return &block->header;
}

void rewind(tag_mem_stack_array& arena) {
    std::fill(std::begin(arena.free_list), std::end(arena.free_list), nullptr);
    arena.chunk = arena.first_chunk;
    arena.chunk_used = 0;
}

bool has_room(const tag_mem_stack_array& arena, std::size_t cost) {
    return arena.chunk != nullptr && arena.chunk->bytes - arena.chunk_used >= cost;
}

// Makes a chunk with room for `cost` bytes the current one: the arena's next, or a new one.
bool next_chunk(tag_mem_stack_array& arena, std::size_t cost) {
    if (arena.left == arena.capacity) rewind(arena);
    while (!has_room(arena, cost)) {
        Chunk** next = arena.chunk != nullptr ? &arena.chunk->next : &arena.first_chunk;
        if (*next == nullptr) {
            const std::size_t bytes = std::max(cost, std::min(CHUNK_BYTES, arena.capacity));
            void* memory = std::malloc(sizeof(Chunk) + bytes);
            if (memory == nullptr) return false;
            *next = new (memory) Chunk{nullptr, bytes};
        }
        arena.chunk = *next;
        arena.chunk_used = 0;
    }
    return true;
}

BlockHeader* carve(tag_mem_stack_array& arena, std::size_t cost, std::size_t size_class) {
    if (!has_room(arena, cost) && !next_chunk(arena, cost)) return nullptr;
    char* memory = reinterpret_cast<char*>(arena.chunk + 1) + arena.chunk_used;
    arena.chunk_used += cost;
    return new (memory) BlockHeader{cost, size_class};
}

}  // namespace

mem_stack_handle mem_stack_create(std::size_t n_capacity) {
    void* memory = std::malloc(sizeof(mem_stack_array));
    if (memory == nullptr) return nullptr;
    auto* arena = new (memory) mem_stack_array{};
    arena->capacity = n_capacity != 0 ? n_capacity : std::numeric_limits<std::size_t>::max();
    arena->left = arena->least_left = arena->capacity;
    return arena;
}

void mem_stack_destroy(mem_stack_handle arena) {
    if (arena == nullptr) return;
    for (LargeBlock* block = arena->large; block != nullptr;) {
        LargeBlock* next = block->next;
        std::free(block);
        block = next;
    }
    for (Chunk* chunk = arena->first_chunk; chunk != nullptr;) {
        Chunk* next = chunk->next;
        std::free(chunk);
        chunk = next;
    }
    std::free(arena);
}

std::size_t mem_stack_used(mem_stack_handle arena) {
    return arena != nullptr ? arena->capacity - arena->left : 0;
}

std::size_t mem_stack_peak(mem_stack_handle arena) {
    return arena != nullptr ? arena->capacity - arena->least_left : 0;
}

namespace {

void* hand_out(tag_mem_stack_array& arena, BlockHeader* block) {
    arena.left -= block->cost;
    if (arena.left < arena.least_left) arena.least_left = arena.left;
    return block + 1;
}

// Serves every request. Out of line, so that the usual one does not pay for its registers.
__attribute__((noinline)) void* request_any(std::size_t size, tag_mem_type type,
                                            mem_stack_handle handle) {
    if (handle == nullptr || static_cast<unsigned>(type) >= MEM_MAX_CNT) return nullptr;
    tag_mem_stack_array& arena = *handle;
    if (size > std::min(arena.left, REQUEST_MAX)) return nullptr;
    const SizeClass wanted = class_of(size);
    const bool large = wanted.index == CLASSES;
    const std::size_t cost = wanted.bytes + (large ? sizeof(LargeBlock) : sizeof(BlockHeader));
    if (cost > arena.left) return nullptr;

    BlockHeader* block = large ? new_large(arena, cost)
                         : arena.free_list[wanted.index] != nullptr
                             ? reuse(arena, wanted.index)
                             : carve(arena, cost, wanted.index);
    return block != nullptr ? hand_out(arena, block) : nullptr;
}

}  // namespace

// The usual request is for a small block of a class that has one free.
void* mem_stack_request_buf(std::size_t size, tag_mem_type type, mem_stack_handle arena) {
    const std::size_t index = (size - 1) / SMALL_STEP;  // of 0 bytes: no small class
    if (arena != nullptr && static_cast<unsigned>(type) < MEM_MAX_CNT && index < SMALL_CLASSES) {
        const FreeBlock* block = arena->free_list[index];
        if (block != nullptr && block->header.cost <= arena->left) {
            return hand_out(*arena, reuse(*arena, index));
        }
    }
    return request_any(size, type, arena);
}

int mem_stack_release_buf(void* p, std::size_t /*size*/, tag_mem_type /*type*/,
                          mem_stack_handle arena) {
    if (p == nullptr || arena == nullptr) return 0;
    BlockHeader* header = static_cast<BlockHeader*>(p) - 1;
    arena->left += header->cost;
    if (header->size_class == CLASSES) {
        free_large(large_block(header));
    } else {
        auto* block = reinterpret_cast<FreeBlock*>(header);
        block->next = arena->free_list[header->size_class];
        arena->free_list[header->size_class] = block;
    }
    return 0;
}

}  // namespace kavi

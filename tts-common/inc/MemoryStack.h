// The host's memory arena: every block the engine works in comes from here.
#ifndef KAVI_MEMORY_STACK_H
#define KAVI_MEMORY_STACK_H

#include <cstddef>

namespace kavi {

// The pool of the arena that a request is charged to. The engine charges everything to MEM_COMMON.
enum tag_mem_type : int {
    MEM_COMMON = 0,
    MEM_TEXT_INIT = 1,
    MEM_SPEECH_INIT = 2,
    MEM_TEXT_ENG_INIT = 3,
    MEM_SPEECH_ENG_INIT = 4,
    MEM_VOCODER_INIT = 5,
    MEM_MAX_CNT = 6,  // the number of pools, not a pool
};

// The arena record is the arena's own affair: the engine stores and passes a pointer to it and
// never looks inside, so a host may define the record as it likes.
struct tag_mem_stack_array;
typedef struct tag_mem_stack_array mem_stack_array;
typedef mem_stack_array* mem_stack_handle;

// ---- What the engine calls. A host with an arena of its own defines these two. ----

// A block of at least `size` bytes, aligned for any type, its contents unspecified. Null when the
// arena is null, `type` is no pool, or the block is refused; the arena is then as it was.
// A request of 0 bytes yields a block of its own that holds nothing.
void* mem_stack_request_buf(std::size_t size, tag_mem_type type, mem_stack_handle arena);

// Gives a block of this arena back, in any order. `size` may be the requested size or 0: the block
// is known by its pointer alone. A null `p` or a null arena does nothing. Always 0. Where
// assertions are on, the arena below asserts that the block is out, and its own.
int mem_stack_release_buf(void* p, std::size_t size, tag_mem_type type, mem_stack_handle arena);

// ---- The arena that comes with the engine. One arena serves one thread at a time. ----

// A new arena whose blocks in use never total more than `n_capacity` bytes, book-keeping included
// (0: no limit). The caller owns it. Null when the system refuses it. What it takes from the
// system, in few pieces, it keeps until its end: at most twice the capacity and 64 KB. When what is
// free there lies in pieces that are too small, a request may be refused before the capacity is
// reached.
mem_stack_handle mem_stack_create(std::size_t n_capacity);

// Ends the arena and every block still out. Null does nothing.
void mem_stack_destroy(mem_stack_handle arena);

// Bytes now in use, book-keeping included: 0 when every block has come back.
std::size_t mem_stack_used(mem_stack_handle arena);

// The most that mem_stack_used has been since the arena was created.
std::size_t mem_stack_peak(mem_stack_handle arena);

// Bytes taken from the system for blocks, in use or not.
std::size_t mem_stack_taken(mem_stack_handle arena);

}  // namespace kavi

#endif  // KAVI_MEMORY_STACK_H

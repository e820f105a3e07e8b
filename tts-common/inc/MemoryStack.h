// The host's memory arena, from which the engine takes every block.
#ifndef KAVI_MEMORY_STACK_H
#define KAVI_MEMORY_STACK_H

#include <cstddef>

namespace kavi {

// The pool that a request is charged to. The engine charges all requests to MEM_COMMON.
enum tag_mem_type : int {
    MEM_COMMON = 0,
    MEM_TEXT_INIT = 1,
    MEM_SPEECH_INIT = 2,
    MEM_TEXT_ENG_INIT = 3,
    MEM_SPEECH_ENG_INIT = 4,
    MEM_VOCODER_INIT = 5,
    MEM_MAX_CNT = 6,  // the number of pools, not a pool
};

// Opaque to the engine, which only stores and passes a pointer to it. A host with an arena of its
// own defines the record.
struct tag_mem_stack_array;
typedef struct tag_mem_stack_array mem_stack_array;
typedef mem_stack_array* mem_stack_handle;

// ---- What the engine calls. A host with an arena of its own defines these two. ----

// A block of at least `size` bytes, aligned for any type, with unspecified contents. The caller
// gives it back with mem_stack_release_buf. Null, with no more bytes in use than before, when the
// arena is null, `type` is not a pool, or the request is refused. A request of 0 bytes gets a block
// of its own.
void* mem_stack_request_buf(std::size_t size, tag_mem_type type, mem_stack_handle arena);

// Gives a block of this arena back. Blocks come back in any order. `size` is the requested size or
// 0; the pointer alone identifies the block. Does nothing when `p` or the arena is null. Always 0.
// With assertions on, the arena below asserts that the block is in use and its own.
int mem_stack_release_buf(void* p, std::size_t size, tag_mem_type type, mem_stack_handle arena);

// ---- The arena that comes with the engine. One arena serves one thread at a time. ----

// A new arena, owned by the caller, whose blocks in use never total more than `n_capacity` bytes,
// headers included (0: no limit). Null when the system refuses it. The arena takes memory from the
// system in chunks and keeps them until mem_stack_destroy: at most twice the capacity and 64 KB.
// When free memory is fragmented, a request may be refused before the capacity is reached.
mem_stack_handle mem_stack_create(std::size_t n_capacity);

// Frees the arena and all its blocks, in use or not. Null does nothing.
void mem_stack_destroy(mem_stack_handle arena);

// The bytes in use, headers included: 0 when every block has been given back. 0 for null.
std::size_t mem_stack_used(mem_stack_handle arena);

// The highest value of mem_stack_used since the arena was created. 0 for null.
std::size_t mem_stack_peak(mem_stack_handle arena);

// The bytes of all chunks taken from the system. 0 for null.
std::size_t mem_stack_taken(mem_stack_handle arena);

}  // namespace kavi

#endif  // KAVI_MEMORY_STACK_H

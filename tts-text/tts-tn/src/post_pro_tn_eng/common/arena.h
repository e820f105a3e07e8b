// Probing the host's arena.
#ifndef KAVI_TN_ARENA_H
#define KAVI_TN_ARENA_H

#include <cstddef>

#include "MemoryStack.h"

namespace kavi::tn {

// Takes a block of `size` bytes and gives it back. False when the arena refused it or is null. For
// operations that need no memory of the arena, but are promised to fail when it has none.
inline bool gives_block(mem_stack_handle arena, std::size_t size) {
    if (arena == nullptr) return false;
    void* block = mem_stack_request_buf(size, MEM_COMMON, arena);
    if (block == nullptr) return false;
    mem_stack_release_buf(block, 0, MEM_COMMON, arena);
    return true;
}

}  // namespace kavi::tn

#endif  // KAVI_TN_ARENA_H

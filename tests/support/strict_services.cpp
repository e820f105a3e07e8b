#include "strict_services.h"

#include <cstdlib>
#include <cstring>

#include "EngLexicon.h"

namespace kavi {

void* mem_stack_request_buf(std::size_t size, tag_mem_type type, mem_stack_handle arena) {
    if (type != MEM_COMMON) std::abort();
    const long number = arena->requests++;
    if (number >= arena->first_refused && number <= arena->last_refused) return nullptr;
    void* block = std::malloc(size);
    if (size > 0) std::memset(block, 0xA5, size);  // contents are unspecified
    arena->in_use[block] = size;
    return block;
}

// The size must be the true one or 0, the block one that is in use.
int mem_stack_release_buf(void* p, std::size_t size, tag_mem_type /*type*/,
                          mem_stack_handle arena) {
    if (p == nullptr) return 0;
    const auto block = arena->in_use.find(p);
    if (block == arena->in_use.end() || (size != 0 && size != block->second)) std::abort();
    arena->in_use.erase(block);
    std::free(p);
    return 0;
}

int eng_lexicon_lookup(const char* /*word*/, char* out, int out_size) {
    std::memset(out, 'x', static_cast<std::size_t>(out_size));  // as much as it may write
    return 1;
}

}  // namespace kavi

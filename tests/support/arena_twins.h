// The arena beside the system allocator: every block has a twin with the same bytes.
#ifndef KAVI_TESTS_ARENA_TWINS_H
#define KAVI_TESTS_ARENA_TWINS_H

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "MemoryStack.h"

namespace kavi {

// Takes steps of two bytes: a request, or the release of one of the blocks. Says which promise of
// the arena was broken, or nothing.
inline std::string broken_promise(const std::string& steps, std::size_t capacity) {
    struct Pair {
        char* block;
        std::string twin;
    };
    mem_stack_handle arena = mem_stack_create(capacity);
    std::vector<Pair> pairs;
    std::size_t most = 0;
    std::string broken;
    const auto promise = [&](bool kept, const char* what) {
        if (!kept) broken = what;
    };
    for (std::size_t i = 0; i + 1 < steps.size(); i += 2) {
        const auto kind = static_cast<unsigned char>(steps[i]);
        const auto low = static_cast<unsigned char>(steps[i + 1]);
        if (kind < 128) {
            const std::size_t size = kind < 64 ? low : (kind - 63U) * 4U * low;
            auto* block = static_cast<char*>(mem_stack_request_buf(size, MEM_COMMON, arena));
            promise(block != nullptr || capacity != 0, "never refused without a capacity");
            if (block == nullptr) continue;
            promise(reinterpret_cast<std::uintptr_t>(block) % alignof(std::max_align_t) == 0,
                    "aligned for any type");
            pairs.push_back({block, std::string(size, static_cast<char>(i))});
            std::copy(pairs.back().twin.begin(), pairs.back().twin.end(), block);
        } else if (!pairs.empty()) {
            const auto pair = pairs.end() - 1 - static_cast<std::ptrdiff_t>(low % pairs.size());
            const std::size_t size = pair->twin.size();
            promise(std::memcmp(pair->block, pair->twin.data(), size) == 0, "blocks stay apart");
            mem_stack_release_buf(pair->block, kind % 2 == 0 ? size : 0, MEM_COMMON, arena);
            pairs.erase(pair);
        }
        std::size_t bytes = 0;
        for (const Pair& pair : pairs) bytes += pair.twin.size();
        const std::size_t used = mem_stack_used(arena);
        promise(used >= bytes && (used == 0) == pairs.empty(), "counts what is in use");
        most = std::max(most, used);
        promise(mem_stack_peak(arena) == most, "remembers the peak");
        promise(capacity == 0 || used <= capacity, "keeps to its capacity");
        promise(capacity == 0 || mem_stack_taken(arena) <= 2 * capacity + 65536,
                "takes no more than twice its capacity from the system");
    }
    mem_stack_destroy(arena);
    return broken;
}

}  // namespace kavi

#endif  // KAVI_TESTS_ARENA_TWINS_H

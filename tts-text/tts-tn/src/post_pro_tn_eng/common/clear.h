// Memory to zero.
#ifndef KAVI_TN_CLEAR_H
#define KAVI_TN_CLEAR_H

#include <cstddef>
#include <cstring>

namespace kavi::tn {

// Clears by pieces that become plain stores: of larger ones, compilers and C libraries make a
// string instruction, which is slow to start.
inline void clear(void* memory, std::size_t size) {
    constexpr std::size_t PIECE = 64;
    auto* bytes = static_cast<char*>(memory);
    for (; size >= 2 * PIECE; size -= 2 * PIECE, bytes += 2 * PIECE) {
        std::memset(bytes, 0, PIECE);
        std::memset(bytes + PIECE, 0, PIECE);
    }
    std::memset(bytes, 0, size);
}

}  // namespace kavi::tn

#endif  // KAVI_TN_CLEAR_H

// Memory to zero.
#ifndef KAVI_TN_CLEAR_H
#define KAVI_TN_CLEAR_H

#include <cstddef>
#include <cstring>

namespace kavi::tn {

// Clears by pieces that become plain stores: of larger ones, compilers and C libraries make a
// string instruction, which is slow to start. Compiled for size, that it is.
template <std::size_t Size>
void clear(void* memory) {
#ifdef __OPTIMIZE_SIZE__
    std::memset(memory, 0, Size);
#else
    constexpr std::size_t PIECE = 64;
    if constexpr (Size <= PIECE) {
        std::memset(memory, 0, Size);
    } else {
        std::memset(memory, 0, PIECE);
        clear<Size - PIECE>(static_cast<char*>(memory) + PIECE);
    }
#endif
}

}  // namespace kavi::tn

#endif  // KAVI_TN_CLEAR_H

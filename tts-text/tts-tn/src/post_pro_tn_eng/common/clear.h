// Memory to zero.
#ifndef KAVI_TN_CLEAR_H
#define KAVI_TN_CLEAR_H

#include <cstddef>
#include <cstring>
#include <utility>

namespace kavi::tn {

constexpr std::size_t CLEARED_PIECE = 64;

template <std::size_t... Numbers>
void clear_pieces(char* bytes, std::index_sequence<Numbers...> /*all*/) {
    (std::memset(bytes + Numbers * CLEARED_PIECE, 0, CLEARED_PIECE), ...);
}

// Clears by pieces that become plain stores: of larger ones, compilers and C libraries make a
// string instruction, which is slow to start. Compiled for size, that it is.
template <std::size_t Size>
void clear(void* memory) {
#ifdef __OPTIMIZE_SIZE__
    std::memset(memory, 0, Size);
#else
    auto* bytes = static_cast<char*>(memory);
    clear_pieces(bytes, std::make_index_sequence<Size / CLEARED_PIECE>());
    std::memset(bytes + Size / CLEARED_PIECE * CLEARED_PIECE, 0, Size % CLEARED_PIECE);
#endif
}

}  // namespace kavi::tn

#endif  // KAVI_TN_CLEAR_H

// Copies of a few characters.
#ifndef KAVI_TN_SHORT_COPY_H
#define KAVI_TN_SHORT_COPY_H

#include <cstddef>
#include <cstring>

namespace kavi::tn {

// Copies `n` characters. Up to 16 go as two pieces that may overlap, which is less than a call of
// memcpy: for words.
inline void copy_short(char* target, const char* source, std::size_t n) {
    const auto copy_ends = [=](std::size_t piece) {
        std::memcpy(target, source, piece);
        std::memcpy(target + n - piece, source + n - piece, piece);
    };
    if (n < 4) {
        if (n > 0) n < 2 ? copy_ends(1) : copy_ends(2);
    } else if (n < 8) {
        copy_ends(4);
    } else if (n <= 16) {
        copy_ends(8);
    } else {
        std::memcpy(target, source, n);
    }
}

}  // namespace kavi::tn

#endif  // KAVI_TN_SHORT_COPY_H

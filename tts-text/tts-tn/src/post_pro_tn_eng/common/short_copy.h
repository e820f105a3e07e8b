// Copying a few characters.
#ifndef KAVI_TN_SHORT_COPY_H
#define KAVI_TN_SHORT_COPY_H

#include <cstddef>
#include <cstring>

namespace kavi::tn {

// memcpy for the length of words: up to 16 characters are copied as two pieces of fixed size that
// may overlap, the first and the last 1, 2, 4 or 8 characters. This costs less than a call. Source
// and target must not overlap.
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

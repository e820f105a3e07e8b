// What compilers have different words for. The project is built by g++ and clang++, for Windows by
// mingw's g++; another compiler needs its own words here.
#ifndef KAVI_COMPILER_H
#define KAVI_COMPILER_H

#include <cstddef>
#include <cstdint>

// A function that is not compiled into its callers.
#define KAVI_NOINLINE __attribute__((noinline))

// A function whose argument `text`, from 1, is a format of printf() for those from `first` on.
#define KAVI_PRINTF(text, first) __attribute__((format(printf, text, first)))

namespace kavi {

// The place of the lowest bit that is set, from 0; of a number that is not 0.
inline int lowest_bit(unsigned bits) {
    return __builtin_ctz(bits);
}
inline int lowest_bit(std::uint64_t bits) {
    return __builtin_ctzll(bits);
}

// The place of the highest one, likewise.
inline int highest_bit(unsigned long bits) {
    return static_cast<int>(sizeof bits * 8) - 1 - __builtin_clzl(bits);
}

// Sets `difference` to a - b; whether that is below 0, and `difference` is another number.
inline bool subtract_overflows(std::size_t a, std::size_t b, std::size_t& difference) {
    return __builtin_sub_overflow(a, b, &difference);
}

}  // namespace kavi

#endif  // KAVI_COMPILER_H

// Attributes and built-ins of the compiler: those of g++ and clang++ (for Windows, of mingw's g++).
// Another compiler needs its own here.
#ifndef KAVI_COMPILER_H
#define KAVI_COMPILER_H

#include <cstddef>
#include <cstdint>

// Before a function: it is not inlined.
#define KAVI_NOINLINE __attribute__((noinline))

// Before a function: argument number `text`, from 1, is a printf format for those from `first` on.
#define KAVI_PRINTF(text, first) __attribute__((format(printf, text, first)))

namespace kavi {

// The index, from 0, of the lowest bit that is set. `bits` is not 0.
inline int lowest_bit(unsigned bits) {
    return __builtin_ctz(bits);
}
inline int lowest_bit(std::uint64_t bits) {
    return __builtin_ctzll(bits);
}

// The index of the highest bit that is set. `bits` is not 0.
inline int highest_bit(unsigned long bits) {
    return static_cast<int>(sizeof bits * 8) - 1 - __builtin_clzl(bits);
}

// Sets `difference` to a - b. True when b is greater than a: then `difference` has wrapped around.
inline bool subtract_overflows(std::size_t a, std::size_t b, std::size_t& difference) {
    return __builtin_sub_overflow(a, b, &difference);
}

}  // namespace kavi

#endif  // KAVI_COMPILER_H

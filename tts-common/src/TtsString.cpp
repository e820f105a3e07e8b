#include "TtsString.h"

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>

namespace kavi {

namespace {

// strnlen of POSIX: `limit` when there is no terminator in the first `limit` bytes.
std::size_t bounded_length(const char* text, std::size_t limit) {
    const void* end = std::memchr(text, '\0', limit);
    return end != nullptr ? static_cast<std::size_t>(static_cast<const char*>(end) - text) : limit;
}

}  // namespace

int safe_strncat(char* dst, const char* src, int n, int cap) {
    if (n < 0 || cap <= 0) return -1;
    const auto capacity = static_cast<std::size_t>(cap);
    const std::size_t used = bounded_length(dst, capacity);
    const std::size_t added = bounded_length(src, static_cast<std::size_t>(n));
    if (added >= capacity - used) return -1;
    std::memcpy(dst + used, src, added);
    dst[used + added] = '\0';
    return 0;
}

int tts_snprintf(char* buf, int size, const char* fmt, ...) {
    if (size <= 0) return -1;
    va_list args;
    va_start(args, fmt);
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): clang-tidy 14 overlooks the va_start
    const int length = std::vsnprintf(buf, static_cast<std::size_t>(size), fmt, args);
    va_end(args);
    return length;
}

}  // namespace kavi

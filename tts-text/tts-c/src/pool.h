// The memory of a result, which is freed as a whole.
#ifndef KAVI_C_POOL_H
#define KAVI_C_POOL_H

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>
#include <type_traits>
#include <vector>

#include "kavi.h"

namespace kavi::c {

class Pool {
  public:
    // `n` objects, all bytes zero.
    template <typename T>
    T* array(std::size_t n) {
        static_assert(std::is_trivial_v<T>);
        return reinterpret_cast<T*>(take(n * sizeof(T)));
    }

    kavi_text text(std::string_view text) {
        char* copy = take(text.size() + 1);
        std::copy(text.begin(), text.end(), copy);
        return {copy, text.size()};
    }

    // A copy of a text, or a constant for the empty one.
    const char* value(const char* text) { return *text == '\0' ? "" : this->text(text).data; }

    // Frees all that was taken. The first block is kept for the next sentence.
    void clear() {
        if (blocks_.size() > 1) blocks_.resize(1);
        used_ = 0;
        size_ = blocks_.empty() ? 0 : BLOCK;
    }

  private:
    static constexpr std::size_t BLOCK = 65536;

    char* take(std::size_t n_bytes) {
        constexpr std::size_t ALIGNMENT = alignof(std::max_align_t);
        const std::size_t size = (n_bytes + ALIGNMENT - 1) / ALIGNMENT * ALIGNMENT;
        if (size > size_ - used_) {
            size_ = std::max(size, BLOCK);
            blocks_.push_back(std::make_unique<char[]>(size_));
            used_ = 0;
        }
        char* taken = blocks_.back().get() + used_;
        used_ += size;
        std::memset(taken, 0, size);
        return taken;
    }

    std::vector<std::unique_ptr<char[]>> blocks_;
    std::size_t used_ = 0;  // of the last block
    std::size_t size_ = 0;  // of the last block
};

}  // namespace kavi::c

#endif  // KAVI_C_POOL_H

// Memory of a result: what was taken from it goes back with it.
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
    // Objects as their zero bytes are.
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

    // Empty texts are one.
    const char* value(const char* text) { return *text == '\0' ? "" : this->text(text).data; }

    // All that was taken goes back, but for the room of the first block.
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
    std::size_t used_ = 0;  // of the last
    std::size_t size_ = 0;  // of that
};

}  // namespace kavi::c

#endif  // KAVI_C_POOL_H

// A working buffer from the arena that always goes back.
#ifndef KAVI_TN_SCRATCH_H
#define KAVI_TN_SCRATCH_H

#include "MemoryStack.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

// Holds an empty text at first. False when the arena refused the buffer.
class Scratch {
  public:
    // `size` is not 0; `release_size` is what the arena is told at the end: 0, or the size.
    explicit Scratch(mem_stack_handle arena, std::size_t size = WORD_MAX_LEN,
                     std::size_t release_size = 0)
        : arena_(arena),
          text_(static_cast<char*>(mem_stack_request_buf(size, MEM_COMMON, arena))),
          release_size_(release_size) {
        if (text_ != nullptr) clear();
    }
    ~Scratch() {
        if (text_ != nullptr) mem_stack_release_buf(text_, release_size_, MEM_COMMON, arena_);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    explicit operator bool() const { return text_ != nullptr; }
    char* text() { return text_; }
    void clear() { text_[0] = '\0'; }

  private:
    mem_stack_handle arena_;
    char* text_;
    std::size_t release_size_;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_SCRATCH_H

// By itself, so that a host whose arena is made otherwise links without these two services.

#include <new>

#include "tts_host.h"

namespace kavi {

namespace {

mem_stack_handle made(std::size_t capacity) {
    mem_stack_handle arena = mem_stack_create(capacity);
    if (arena == nullptr) throw std::bad_alloc();
    return arena;
}

}  // namespace

TtsHost::TtsHost(std::size_t n_capacity) : TtsHost(made(n_capacity), mem_stack_destroy) {}

}  // namespace kavi

// By itself, so that a host whose arena is made otherwise links without these two services.

#include "tts_host.h"

namespace kavi {

TtsHost::TtsHost(std::size_t n_capacity)
    : TtsHost(mem_stack_create(n_capacity), mem_stack_destroy) {}

}  // namespace kavi

// Services of a test's own in place of the engine's: every block is one of the system allocator, so
// that AddressSanitizer sees its exact bounds, and any request can be refused.
#ifndef KAVI_TESTS_STRICT_SERVICES_H
#define KAVI_TESTS_STRICT_SERVICES_H

#include <limits>
#include <map>
#include <string>

#include "MemoryStack.h"

namespace kavi {

struct tag_mem_stack_array {
    long first_refused = std::numeric_limits<long>::max();  // counted from 0
    long last_refused = std::numeric_limits<long>::max();
    long requests = 0;
    std::map<void*, std::size_t> in_use;
};

// The last word that the lexicon was asked for.
inline std::string looked_up;

}  // namespace kavi

#endif  // KAVI_TESTS_STRICT_SERVICES_H

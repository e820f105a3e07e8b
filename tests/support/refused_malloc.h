// A system without memory for the arena: the test program is linked so that every malloc of its own
// objects comes here.
#ifndef KAVI_TESTS_REFUSED_MALLOC_H
#define KAVI_TESTS_REFUSED_MALLOC_H

#include <cstddef>

extern "C" void* __real_malloc(std::size_t size);

namespace kavi {

// While one lives, and between begin() and end(), malloc has nothing to give.
class RefusedMalloc {
  public:
    RefusedMalloc() { begin(); }
    ~RefusedMalloc() { end(); }
    static void begin() { active = true; }
    static void end() { active = false; }
    inline static thread_local bool active = false;
};

}  // namespace kavi

extern "C" inline __attribute__((used)) void* __wrap_malloc(std::size_t size) {
    return kavi::RefusedMalloc::active ? nullptr : __real_malloc(size);
}

#endif  // KAVI_TESTS_REFUSED_MALLOC_H

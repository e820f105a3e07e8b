// Bounds of what a target does: a stack of 64 KB, and a number of steps.
#ifndef KAVI_FUZZ_BOUNDS_H
#define KAVI_FUZZ_BOUNDS_H

#include <signal.h>
#include <sys/mman.h>
#include <ucontext.h>

#include <cstddef>
#include <cstdint>

namespace kavi::fuzz {

// The branches that the libraries have come to, where they are built to count them; otherwise none.
inline std::uint64_t steps = 0;

// Runs `body` on a stack of 64 KB with nothing below it. AddressSanitizer takes several times as
// much for the same calls, and the system's stack.
template <typename Body>
void on_small_stack(Body body) {
#if __has_feature(address_sanitizer)
    body();
#else
    constexpr std::size_t PAGE = 4096;
    constexpr std::size_t STACK = std::size_t{64} * 1024;
    static char* const stack = [] {
        void* all =
            mmap(nullptr, PAGE + STACK, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        mprotect(all, PAGE, PROT_NONE);
        static char for_handlers[STACK];  // the fuzzer's, when the other one is used up
        const stack_t alternative = {for_handlers, 0, STACK};
        sigaltstack(&alternative, nullptr);
        return static_cast<char*>(all) + PAGE;
    }();
    static Body* current;
    current = &body;
    ucontext_t here;
    ucontext_t there;
    getcontext(&there);
    there.uc_stack.ss_sp = stack;
    there.uc_stack.ss_size = STACK;
    there.uc_link = &here;
    makecontext(
        &there, [] { (*current)(); }, 0);
    swapcontext(&here, &there);
#endif
}

}  // namespace kavi::fuzz

// In the place of the fuzzer's own, which counts nothing.
extern "C" inline __attribute__((used)) void __wrap___sanitizer_cov_trace_pc() {
    ++kavi::fuzz::steps;
}

#endif  // KAVI_FUZZ_BOUNDS_H

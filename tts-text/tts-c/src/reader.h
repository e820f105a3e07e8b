// The layer between the C functions and the host layer.
#ifndef KAVI_C_READER_H
#define KAVI_C_READER_H

#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "kavi.h"
#include "pool.h"
#include "tts_host.h"
#include "tts_plain.h"

namespace kavi {
class Everyday;
class Lexicon;
}  // namespace kavi

struct kavi_reader {
    explicit kavi_reader(std::size_t n_capacity) : capacity(n_capacity), host(n_capacity) {}

    std::size_t capacity;
    kavi::TtsHost host;
    kavi::PlainForm plain;  // of the last sentence

    // What rewrites texts: only readings.cpp uses these types.
    std::shared_ptr<kavi::Lexicon> lexicon;
    std::shared_ptr<kavi::Everyday> everyday;
    const kavi::TextRewriter* rewriter = nullptr;  // `everyday`, or null
    std::uint32_t classes = 0;

    std::string error;
    bool is_reading = false;
};

struct kavi_result {
    kavi::c::Pool pool;
    std::vector<kavi_sentence> sentences;
    std::vector<kavi_finding> findings;
};

namespace kavi::c {

// What `work` returns; KAVI_NO_MEMORY for std::bad_alloc, and KAVI_STOPPED for any other exception,
// which only a handler of the caller throws.
template <typename Work>
kavi_status guarded(Work work) {
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return KAVI_NO_MEMORY;
    } catch (...) {
        return KAVI_STOPPED;
    }
}

// A sentence with copies, in `pool`, of all it points to. It was read from a text of which `text`
// begins at the offset `text_begin`. `plain` is overwritten.
kavi_sentence copied(const HostSentence& sentence, std::string_view text, std::size_t text_begin,
                     std::uint32_t wanted, PlainForm& plain, Pool& pool);

}  // namespace kavi::c

#endif  // KAVI_C_READER_H

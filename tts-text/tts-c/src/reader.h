// The layer between the C functions and the host layer.
#ifndef KAVI_C_READER_H
#define KAVI_C_READER_H

#include <memory>
#include <new>
#include <string>
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

    // Of readings.cpp: what rewrites texts, of which the reader itself knows nothing.
    std::shared_ptr<kavi::Lexicon> lexicon;
    std::shared_ptr<kavi::Everyday> everyday;
    const kavi::TextRewriter* rewriter = nullptr;  // that, or null
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

// What the work answers, or no memory. Nothing else is thrown but by a handler, which means stop.
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

// A sentence of a text, of which `text` is what is there from `text_begin` on, with copies of all
// it points to. `plain` is written anew.
kavi_sentence copied(const HostSentence& sentence, std::string_view text, std::size_t text_begin,
                     std::uint32_t wanted, PlainForm& plain, Pool& pool);

}  // namespace kavi::c

#endif  // KAVI_C_READER_H

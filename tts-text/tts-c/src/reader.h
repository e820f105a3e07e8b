// What stands between the C functions and the host layer.
#ifndef KAVI_C_READER_H
#define KAVI_C_READER_H

#include <memory>
#include <string>
#include <vector>

#include "kavi.h"
#include "pool.h"
#include "tts_everyday.h"
#include "tts_host.h"

struct kavi_reader {
    explicit kavi_reader(std::size_t capacity) : host(capacity) {}

    // Everyday English by the lexicon and the classes that are asked for now.
    void rewrite();

    kavi::TtsHost host;
    std::unique_ptr<kavi::Lexicon> lexicon;
    kavi::Everyday everyday = kavi::Everyday(nullptr);
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

// A sentence of `text` with copies of all it points to.
kavi_sentence copied(const HostSentence& sentence, std::string_view text, std::uint32_t wanted,
                     Pool& pool);

}  // namespace kavi::c

#endif  // KAVI_C_READER_H

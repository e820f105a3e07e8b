// What the fuzz targets share.
#ifndef KAVI_FUZZ_SUPPORT_H
#define KAVI_FUZZ_SUPPORT_H

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "post_pro_tn_eng.h"
#include "records.h"
#include "strict_services.h"

namespace kavi::fuzz {

// A broken promise is a crash that the fuzzer keeps.
inline void require(bool kept) {
    if (!kept) std::abort();
}

// The first two bytes say from which request on the arena refuses, and how often; the rest is text.
// Half of the inputs refuse nothing.
inline std::string take_refusals(const std::uint8_t*& data, std::size_t& size,
                                 tag_mem_stack_array& arena) {
    if (size >= 2) {
        if (data[0] < 128) {
            arena.first_refused = data[0];
            arena.last_refused = data[0] + (data[1] % 2 == 0 ? 0 : 1000000);
        }
        data += 2;
        size -= 2;
    }
    std::string text(reinterpret_cast<const char*>(data), size);
    return text.c_str();  // up to the first NUL, as the engine sees it
}

// Builds and releases; nothing may stay in use, and no record may be half written.
inline void build(PostProTnEng& engine, tag_mem_stack_array& arena, char* text) {
    UtteranceSyllable* utt = nullptr;
    int n_utt = -1;
    const int result = engine.eng_text_to_utterance_syllable(text, utt, n_utt);
    require((utt == nullptr) == (n_utt == 0) && (utt != nullptr || result == -1));
    for (int i = 1; i < n_utt; ++i) {
        require((utt[i].syllable == nullptr) == (utt[i].zhuyin == nullptr));
        require(utt[i].syllable != nullptr || result == -1);
    }
    release(utt, n_utt, &arena);
    require(arena.in_use.empty());
}

}  // namespace kavi::fuzz

#endif  // KAVI_FUZZ_SUPPORT_H

// What the fuzz targets share.
#ifndef KAVI_FUZZ_SUPPORT_H
#define KAVI_FUZZ_SUPPORT_H

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

#include "common/ascii.h"
#include "post_pro_tn_eng.h"
#include "records.h"
#include "step_reader.h"
#include "strict_services.h"

namespace kavi::fuzz {

// A broken promise is a crash that the fuzzer keeps.
inline void require(bool kept) {
    if (!kept) std::abort();
}

// An engine on an arena that may refuse, and the promises that its calls keep whatever happens.
struct StrictEngine {
    StrictEngine() { engine.init(&arena); }

    // The first two bytes of an input say from which request on the arena refuses, and how often;
    // the rest is text, up to the first NUL as the engine sees it. Half of the inputs refuse
    // nothing.
    std::string take_refusals(const std::uint8_t* data, std::size_t size) {
        if (size < 2) return {};
        if (data[0] < 128) {
            arena.first_refused = data[0];
            arena.last_refused = data[0] + (data[1] % 2 == 0 ? 0 : 1000000);
        }
        const std::string text(reinterpret_cast<const char*>(data) + 2, size - 2);
        return text.c_str();
    }

    bool may_refuse() const { return arena.first_refused != std::numeric_limits<long>::max(); }

    std::string tokenize(char* text) {
        std::string target(SZ_TEXT_MAX_LEN, '\0');
        const bool read = engine.eng_text_tokenize(text, target.data()) == 0;
        require(arena.in_use.empty());
        const std::string speakable = target.c_str();
        bool in_tag = false;
        for (const char c : speakable) {
            in_tag = in_tag || c == '<';
            require(!read || in_tag || c == ' ' || tn::is_letter(c));
            in_tag = in_tag && c != '>';
        }
        require(!read || speakable.empty() || speakable.back() != ' ');
        return speakable;
    }

    // Builds and releases; nothing may stay in use, and no record may be half written. The words,
    // or none when the builder failed.
    std::vector<std::string> build(char* text) {
        UtteranceSyllable* utt = nullptr;
        int n_utt = -1;
        const int result = engine.eng_text_to_utterance_syllable(text, utt, n_utt);
        require((utt == nullptr) == (n_utt == 0) && (utt != nullptr || result == -1));
        for (int i = 1; i < n_utt; ++i) {
            require((utt[i].syllable == nullptr) == (utt[i].zhuyin == nullptr));
            require(utt[i].syllable != nullptr || result == -1);
        }
        std::vector<std::string> words;
        if (result == 0) words = words_of_records(utt, n_utt);
        release(utt, n_utt, &arena);
        require(arena.in_use.empty());
        return words;
    }

    tag_mem_stack_array arena;
    PostProTnEng engine;
};

}  // namespace kavi::fuzz

#endif  // KAVI_FUZZ_SUPPORT_H

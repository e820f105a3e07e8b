#include "peers.h"

#include <array>

#ifdef KAVI_BENCH_FLITE
#include <flite/flite.h>
extern "C" cst_voice* register_cmu_us_kal(const char* directory);
#endif
#ifdef KAVI_BENCH_ESPEAK
#include <espeak-ng/speak_lib.h>
#endif

namespace kavi::bench {

namespace {

constexpr std::array<unsigned char, 256> make_letters() {
    std::array<unsigned char, 256> letters{};
    for (unsigned c = 'a'; c <= 'z'; ++c) letters[c] = letters[c - 'a' + 'A'] = 1;
    return letters;
}

constexpr auto IS_LETTER = make_letters();

}  // namespace

std::size_t count_words(const std::string& text) {
    std::size_t words = 0;
    unsigned char before = 0;
    for (const char c : text) {
        const unsigned char letter = IS_LETTER[static_cast<unsigned char>(c)];
        words += static_cast<std::size_t>(letter & ~before & 1U);
        before = letter;
    }
    return words;
}

#ifdef KAVI_BENCH_FLITE
std::size_t flite_words(const std::string& text) {
    static cst_voice* const voice = [] {
        flite_init();
        return register_cmu_us_kal(nullptr);
    }();
    cst_utterance* utterance = new_utterance();
    utt_set_input_text(utterance, text.c_str());
    utt_init(utterance, voice);
    default_tokenization(utterance);
    default_textanalysis(utterance);
    std::size_t words = 0;
    for (cst_item* item = relation_head(utt_relation(utterance, "Word")); item != nullptr;
         item = item_next(item)) {
        ++words;
    }
    delete_utterance(utterance);
    return words;
}
#else
std::size_t flite_words(const std::string&) {
    return 0;
}
#endif

#ifdef KAVI_BENCH_ESPEAK
std::size_t espeak_phonemes(const std::string& text) {
    static const int rate = [] {
        const int result = espeak_Initialize(AUDIO_OUTPUT_RETRIEVAL, 0, nullptr, 0);
        espeak_SetVoiceByName("en-us");
        return result;
    }();
    if (rate < 0) return 0;
    std::size_t phonemes = 0;
    for (const void* rest = text.c_str(); rest != nullptr;) {
        phonemes += std::string(espeak_TextToPhonemes(&rest, espeakCHARS_UTF8, 0)).size();
    }
    return phonemes;
}
#else
std::size_t espeak_phonemes(const std::string&) {
    return 0;
}
#endif

}  // namespace kavi::bench

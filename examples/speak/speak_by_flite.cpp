// Text in, sound out, by flite, which takes plain words and reads nothing itself any more.
// Usage: speak_by_flite FILE.wav TEXT

#include <flite/flite.h>

#include <cstdio>
#include <string>

#include "tts_host.h"
#include "tts_plain.h"

extern "C" cst_voice* register_cmu_us_kal(const char* folder);

int main(int argc, char** argv) {
    if (argc != 3) return std::fputs("Usage: speak_by_flite FILE.wav TEXT\n", stderr), 2;
    std::string words;
    kavi::PlainForm plain;
    kavi::TtsHost().read(
        argv[2],
        [&](const kavi::HostSentence& sentence) {
            plain.read(sentence, argv[2]);
            words += plain.all();
            return true;
        },
        nullptr);
    flite_init();
    cst_wave* wave = flite_text_to_wave(words.c_str(), register_cmu_us_kal(nullptr));
    return wave != nullptr && cst_wave_save_riff(wave, argv[1]) == 0 ? 0 : 1;
}

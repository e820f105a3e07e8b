// The peer of scripts/beside: for each line of standard input, the phonemes that espeak-ng would
// say.

#include <espeak-ng/speak_lib.h>

#include <cstdio>
#include <iostream>
#include <string>

int main() {
    if (espeak_Initialize(AUDIO_OUTPUT_RETRIEVAL, 0, nullptr, 0) < 0) return 1;
    espeak_SetVoiceByName("en-us");
    for (std::string text; std::getline(std::cin, text); std::printf("\n")) {
        const void* rest = text.c_str();
        while (rest != nullptr)
            std::printf("%s ", espeak_TextToPhonemes(&rest, espeakCHARS_UTF8, 0));
    }
}

// Text in, sound out: espeak-ng speaks what kavi reads, pauses and markup included, and reports
// every word when it speaks it. Usage: speak FILE.wav TEXT   writes the sound, and for each word
// its time in ms to standard output
//        speak --words         writes the words that are heard of each line of standard input

#include <espeak-ng/speak_lib.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>
#include <vector>

#include "tts_host.h"
#include "tts_ssml.h"

namespace {

struct Word {
    int at;  // in milliseconds
    std::string text;
};

struct Spoken {
    std::string document;
    std::vector<short> samples;
    std::vector<Word> words;
};

// Called with each piece of sound and what is spoken in it.
int take(short* samples, int n, espeak_EVENT* events) {
    auto* spoken = static_cast<Spoken*>(events->user_data);
    if (samples != nullptr) spoken->samples.insert(spoken->samples.end(), samples, samples + n);
    for (const espeak_EVENT* event = events; event->type != espeakEVENT_LIST_TERMINATED; ++event) {
        // Places are counted from 1, in the document; the voice does not know that of every word.
        if (event->type != espeakEVENT_WORD || event->text_position < 1) continue;
        const auto begin = static_cast<std::size_t>(event->text_position - 1);
        if (begin >= spoken->document.size()) continue;
        spoken->words.push_back(
            {event->audio_position,
             spoken->document.substr(begin, static_cast<std::size_t>(event->length))});
    }
    return 0;
}

Spoken speak(std::string_view text) {
    Spoken spoken;
    kavi::SsmlForm form(false);
    spoken.document = kavi::SSML_BEGIN;
    kavi::TtsHost().read(
        text,
        [&](const kavi::HostSentence& sentence) {
            form.read(sentence, text);
            spoken.document += form.all();
            return true;
        },
        nullptr);
    spoken.document += kavi::SSML_END;
    espeak_Synth(spoken.document.c_str(), spoken.document.size() + 1, 0, POS_CHARACTER, 0,
                 espeakSSML | espeakCHARS_UTF8, nullptr, &spoken);
    espeak_Synchronize();
    return spoken;
}

void put(std::uint32_t value, int bytes, std::FILE* file) {
    for (int i = 0; i < bytes; ++i) std::fputc(static_cast<int>(value >> (8 * i) & 0xffU), file);
}

bool write_wav(const char* name, const std::vector<short>& samples, int rate) {
    std::FILE* file = std::fopen(name, "wb");
    if (file == nullptr) return false;
    const auto size = static_cast<std::uint32_t>(2 * samples.size());
    std::fwrite("RIFF", 1, 4, file);
    put(36 + size, 4, file);
    std::fwrite("WAVEfmt ", 1, 8, file);
    put(16, 4, file);
    put(1, 2, file);  // plain samples,
    put(1, 2, file);  // of one channel
    put(static_cast<std::uint32_t>(rate), 4, file);
    put(static_cast<std::uint32_t>(2 * rate), 4, file);
    put(2, 2, file);
    put(16, 2, file);
    std::fwrite("data", 1, 4, file);
    put(size, 4, file);
    for (const short sample : samples) put(static_cast<std::uint16_t>(sample), 2, file);
    return std::fclose(file) == 0;
}

}  // namespace

int main(int argc, char** argv) {
    const bool words_only = argc == 2 && std::strcmp(argv[1], "--words") == 0;
    if (argc != 3 && !words_only) {
        std::fputs("Usage: speak FILE.wav TEXT, or speak --words\n", stderr);
        return 2;
    }
    const int rate = espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, 0, nullptr, 0);
    if (rate < 0 || espeak_SetVoiceByName("en") != EE_OK) return 1;
    espeak_SetSynthCallback(take);
    if (words_only) {
        for (std::string line; std::getline(std::cin, line);) {
            const char* blank = "";
            for (const Word& word : speak(line).words) {
                std::printf("%s%s", blank, word.text.c_str());
                blank = " ";
            }
            std::puts("");
        }
        return 0;
    }
    const Spoken spoken = speak(argv[2]);
    for (const Word& word : spoken.words) std::printf("%d %s\n", word.at, word.text.c_str());
    return write_wav(argv[1], spoken.samples, rate) ? 0 : 1;
}

#include <cstdio>

#include "tts_host.h"

int main() {
    kavi::TtsHost host;
    const bool all_read = host.read(
        "<emphasis=strong>Wait</emphasis>, it costs $5.</poem>",
        [](const kavi::HostSentence& sentence) {
            for (int i = 1; i < sentence.n_records; ++i) {
                const kavi::UtteranceSyllable& word = sentence.records[i];
                std::printf("%s (pause %d, emphasis \"%s\")\n", word.syllable, word.pause_type,
                            word.cssml_tag.emphasis);
            }
            return true;
        },
        [](const kavi::Diagnostic& diagnostic) {
            std::printf("byte %zu: %s\n", diagnostic.offset, kavi::describe(diagnostic.finding));
            return true;
        });
    return all_read ? 0 : 1;
}

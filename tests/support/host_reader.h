// Reads texts through the host layer and by hand, as lists that can be compared.
#ifndef KAVI_TESTS_HOST_READER_H
#define KAVI_TESTS_HOST_READER_H

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "post_pro_tn_eng.h"
#include "records.h"
#include "tts_host.h"

namespace kavi {

struct ReadText {
    std::vector<std::string> normalized;
    std::vector<std::string> speakable;
    std::vector<std::string> records;
    std::vector<std::string> words;  // of all records
    std::vector<std::string> sources;
    std::vector<Diagnostic> diagnostics;
    std::size_t covered = 0;  // bytes of source, from the start without a gap
    bool all_read = false;
};

inline ReadText read_by_layer(TtsHost& host, std::string_view text) {
    ReadText result;
    result.all_read = host.read(
        text,
        [&](const HostSentence& sentence) {
            result.normalized.emplace_back(sentence.normalized);
            result.speakable.emplace_back(sentence.speakable);
            result.records.push_back(to_text(sentence.records, sentence.n_records));
            for (int i = 1; i < sentence.n_records; ++i) {
                result.words.emplace_back(sentence.records[i].syllable);
            }
            result.sources.emplace_back(text.substr(sentence.offset, sentence.length));
            if (sentence.offset == result.covered) result.covered += sentence.length;
        },
        [&](const Diagnostic& diagnostic) { result.diagnostics.push_back(diagnostic); });
    return result;
}

inline ReadText read_by_layer(std::string_view text, std::size_t capacity = 0) {
    TtsHost host(capacity);
    return read_by_layer(host, text);
}

// The calling order of a host that has the engine alone. For texts of up to 4095 bytes.
inline ReadText read_by_hand(std::string_view text) {
    ReadText result;
    result.all_read = true;
    mem_stack_handle arena = mem_stack_create(0);
    PostProTnEng engine;
    engine.init(arena);
    for (std::string source(text); !source.empty();) {
        char target[SZ_TEXT_MAX_LEN] = {};
        char next[SZ_TEXT_MAX_LEN] = {};
        engine.eng_text_normalize(source.data(), target, next);
        source = next;
        if (target[0] == '\0') continue;
        char speakable[SZ_TEXT_MAX_LEN] = {};
        const bool tokenized = engine.eng_text_tokenize(target, speakable) == 0;
        UtteranceSyllable* utt = nullptr;
        int n_utt = 0;
        const bool built = engine.eng_text_to_utterance_syllable(speakable, utt, n_utt) == 0;
        result.all_read = result.all_read && tokenized && built;
        result.normalized.emplace_back(target);
        result.speakable.emplace_back(speakable);
        result.records.push_back(to_text(utt, n_utt));
        release(utt, n_utt, arena);
    }
    mem_stack_destroy(arena);
    return result;
}

}  // namespace kavi

#endif  // KAVI_TESTS_HOST_READER_H

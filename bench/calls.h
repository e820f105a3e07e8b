// The engine's calls as a host makes them.
#ifndef KAVI_BENCH_CALLS_H
#define KAVI_BENCH_CALLS_H

#include <cstring>
#include <string>

#include "post_pro_tn_eng.h"
#include "tts_host.h"

namespace kavi::bench {

class Calls {
  public:
    Calls() { engine_.init(arena_); }
    ~Calls() { mem_stack_destroy(arena_); }
    Calls(const Calls&) = delete;
    Calls& operator=(const Calls&) = delete;

    // Cuts a text of at most 4,095 bytes into sentences and calls `sentence` with each.
    template <typename Sentence>
    void normalize(const std::string& text, Sentence sentence) {
        char* source = buffers_[0];
        char* next = buffers_[1];
        std::memcpy(source, text.c_str(), text.size() + 1);
        while (source[0] != '\0') {
            sentence_[0] = '\0';
            next[0] = '\0';
            engine_.eng_text_normalize(source, sentence_, next);
            sentence(sentence_);
            std::swap(source, next);
        }
    }

    // Cuts the first sentence off a text of any length; what is left of it is of no use.
    int first_sentence(char* text) {
        sentence_[0] = '\0';
        buffers_[1][0] = '\0';
        engine_.eng_text_normalize(text, sentence_, buffers_[1]);
        return sentence_[0];
    }

    // The result is valid until the next call.
    char* tokenize(char* sentence) {
        speakable_[0] = '\0';
        engine_.eng_text_tokenize(sentence, speakable_);
        return speakable_;
    }

    // Builds the records and gives them back; how many they were.
    int build(char* speakable) {
        UtteranceSyllable* utt = nullptr;
        int n_utt = 0;
        engine_.eng_text_to_utterance_syllable(speakable, utt, n_utt);
        for (int i = 0; i < n_utt; ++i) {
            mem_stack_release_buf(utt[i].syllable, 0, MEM_COMMON, arena_);
            mem_stack_release_buf(utt[i].zhuyin, 0, MEM_COMMON, arena_);
        }
        mem_stack_release_buf(utt, 0, MEM_COMMON, arena_);
        return n_utt;
    }

    int all(const std::string& text) {
        int records = 0;
        normalize(text, [&](char* sentence) { records += build(tokenize(sentence)); });
        return records;
    }

  private:
    mem_stack_handle arena_ = mem_stack_create(0);
    PostProTnEng engine_;
    char buffers_[2][SZ_TEXT_MAX_LEN] = {};
    char sentence_[SZ_TEXT_MAX_LEN] = {};
    char speakable_[SZ_TEXT_MAX_LEN] = {};
};

// Reads a text by the host layer, and asks for the places of all words or not; how many records it
// has.
inline int read_by_host(const std::string& text, bool asks_for_places) {
    static TtsHost host;
    int records = 0;
    host.read(
        text,
        [&](const HostSentence& sentence) {
            if (!asks_for_places || sentence.places.words() != nullptr) {
                records += sentence.n_records;
            }
            return true;
        },
        nullptr);
    return records;
}

}  // namespace kavi::bench

#endif  // KAVI_BENCH_CALLS_H

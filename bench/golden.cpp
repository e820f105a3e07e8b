// Prints all that the engine makes of the files it is given: raw text through all three calls, and
// the same bytes straight into the tokenizer and the builder. The output is the same, byte for
// byte, on every platform. Plain C texts throughout, so that MemorySanitizer sees every byte.

#include <cstdio>
#include <cstring>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

#include "post_pro_tn_eng.h"

namespace {

using namespace kavi;

mem_stack_handle arena;
PostProTnEng engine;

void print(const CssmlTag& tag) {
    std::printf("%s|%s|%s|%s|%s|%s|%s|%s", tag.breaktime, tag.emphasis, tag.pro_pitch, tag.pro_rate,
                tag.pro_volume, tag.pro_spectrum, tag.poem, tag.quill_effect);
}

void print(const UtteranceSyllable& record) {
    std::printf("  %s %d %d %d %d %d %d:", record.syllable != nullptr ? record.syllable : "-",
                record.syl_len, record.zy_len, record.pause_type, record.pause_pl_type,
                record.pausetype_ta, record.pause_type_tn);
    for (int i = 0; i < record.n_punc; ++i) std::printf(" %d", record.punc_arr[i]);
    std::printf(" [");
    print(record.cssml_tag);
    std::printf("]\n");
    for (int i = 0; i < record.zy_len; ++i) {
        if (record.zhuyin[i] != 0) std::printf("zhuyin\n");
    }
}

void build(char* text) {
    UtteranceSyllable* utt = nullptr;
    int n_utt = 0;
    std::printf("utterance %d", engine.eng_text_to_utterance_syllable(text, utt, n_utt));
    std::printf(", %d records\n", n_utt);
    for (int i = 0; i < n_utt; ++i) {
        print(utt[i]);
        mem_stack_release_buf(utt[i].syllable, 0, MEM_COMMON, arena);
        mem_stack_release_buf(utt[i].zhuyin, 0, MEM_COMMON, arena);
    }
    mem_stack_release_buf(utt, 0, MEM_COMMON, arena);
}

void tokenize_and_build(char* sentence) {
    char speakable[SZ_TEXT_MAX_LEN] = {};
    std::printf("tokenize %d: ", engine.eng_text_tokenize(sentence, speakable));
    std::printf("%s\n", speakable);
    build(speakable);
}

void read(char* source) {
    build(source);
    tokenize_and_build(source);
    while (source[0] != '\0') {
        char sentence[SZ_TEXT_MAX_LEN] = {};
        char next[SZ_TEXT_MAX_LEN] = {};
        std::printf("normalize %d: ", engine.eng_text_normalize(source, sentence, next));
        std::printf("%s\nnext: %s\n", sentence, next);
        tokenize_and_build(sentence);
        std::memcpy(source, next, SZ_TEXT_MAX_LEN);
    }
}

}  // namespace

int main(int n_files, char** files) {
#ifdef _WIN32
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    arena = mem_stack_create(0);
    engine.init(arena);
    for (int i = 1; i < n_files; ++i) {
        std::FILE* file = std::fopen(files[i], "rb");
        if (file == nullptr) return 1;
        char source[SZ_TEXT_MAX_LEN];
        while (const std::size_t n = std::fread(source, 1, SZ_TEXT_MAX_LEN - 1, file)) {
            source[n] = '\0';
            read(source);
        }
        std::fclose(file);
    }
    const bool clean = mem_stack_used(arena) == 0;
    mem_stack_destroy(arena);
    return clean ? 0 : 1;
}

// A host with an arena, string services and lexicon of its own links kavi::engine alone and defines
// what the engine calls: two operations of MemoryStack.h, safe_strncat and eng_lexicon_lookup. This
// one counts what is in use.
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "EngLexicon.h"
#include "TtsString.h"
#include "post_pro_tn_eng.h"

namespace kavi {

struct tag_mem_stack_array {
    long blocks_in_use;
};

void* mem_stack_request_buf(std::size_t size, tag_mem_type, mem_stack_handle arena) {
    void* block = std::malloc(size > 0 ? size : 1);
    if (block != nullptr) ++arena->blocks_in_use;
    return block;
}

int mem_stack_release_buf(void* p, std::size_t, tag_mem_type, mem_stack_handle arena) {
    if (p != nullptr) --arena->blocks_in_use;
    std::free(p);
    return 0;
}

int safe_strncat(char* dst, const char* src, int n, int cap) {
    const std::size_t used = std::strlen(dst);
    const std::size_t added = strnlen(src, static_cast<std::size_t>(n));
    if (used + added >= static_cast<std::size_t>(cap)) return -1;
    std::memcpy(dst + used, src, added);
    dst[used + added] = '\0';
    return 0;
}

int eng_lexicon_lookup(const char* word, char*, int) {
    return std::strcmp(word, "nasa");
}

}  // namespace kavi

int main() {
    using namespace kavi;
    tag_mem_stack_array arena = {};
    PostProTnEng engine;
    engine.init(&arena);
    char sentence[] = "NASA paid $5";
    char words[SZ_TEXT_MAX_LEN] = {};
    const int result = engine.eng_text_tokenize(sentence, words);
    std::printf("%s (%ld blocks in use)\n", words, arena.blocks_in_use);
    return result;
}

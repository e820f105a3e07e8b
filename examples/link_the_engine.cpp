#include <cstdio>
#include <cstring>

#include "post_pro_tn_eng.h"

int main() {
    using namespace kavi;
    mem_stack_handle arena = mem_stack_create(0);
    PostProTnEng engine;
    engine.init(arena);
    char source[SZ_TEXT_MAX_LEN] = "I have 2 cats, e.g. Tom. It's 10:30!";
    while (source[0] != '\0') {
        char sentence[SZ_TEXT_MAX_LEN] = {}, rest[SZ_TEXT_MAX_LEN] = {},
             words[SZ_TEXT_MAX_LEN] = {};
        engine.eng_text_normalize(source, sentence, rest);
        if (engine.eng_text_tokenize(sentence, words) == 0) std::puts(words);
        std::strcpy(source, rest);
    }
    mem_stack_destroy(arena);
}

// Raw text through all three calls, with an arena that may refuse.

#include "common/ascii.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kavi;
    tag_mem_stack_array arena;
    std::string source = fuzz::take_refusals(data, size, arena);
    PostProTnEng engine;
    engine.init(&arena);
    while (!source.empty()) {
        // On the heap, so that a byte beyond a buffer is seen.
        std::string target(SZ_TEXT_MAX_LEN, '\0');
        std::string next(SZ_TEXT_MAX_LEN, '\0');
        std::string speakable(SZ_TEXT_MAX_LEN, '\0');
        const std::string before = source;
        fuzz::require(engine.eng_text_normalize(source.data(), target.data(), next.data()) == 0);
        fuzz::require(source == before);
        source = next.c_str();
        fuzz::require(source.size() < before.size() || before.size() >= SZ_TEXT_MAX_LEN);
        const bool read = engine.eng_text_tokenize(target.data(), speakable.data()) == 0;
        fuzz::require(arena.in_use.empty());
        if (read) {
            const std::string text = speakable.c_str();
            bool in_tag = false;
            for (const char c : text) {
                in_tag = in_tag || c == '<';
                fuzz::require(in_tag || c == ' ' || tn::is_letter(c));
                in_tag = in_tag && c != '>';
            }
            fuzz::require(text.empty() || text.back() != ' ');
        }
        fuzz::build(engine, arena, speakable.data());
    }
    return 0;
}

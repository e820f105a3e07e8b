// Arbitrary bytes into the tokenizer and the builder, with an arena that may refuse. The builder
// asserts that its two passes agree.

#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kavi;
    tag_mem_stack_array arena;
    std::string text = fuzz::take_refusals(data, size, arena);
    PostProTnEng engine;
    engine.init(&arena);
    std::string speakable(SZ_TEXT_MAX_LEN, '\0');
    static_cast<void>(engine.eng_text_tokenize(text.data(), speakable.data()));
    fuzz::require(arena.in_use.empty());
    arena.requests = 0;
    fuzz::build(engine, arena, text.data());
    return 0;
}

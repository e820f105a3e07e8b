// Raw text through all three calls, with an arena that may refuse.

#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kavi;
    fuzz::StrictEngine strict;
    std::string source = strict.take_refusals(data, size);
    while (!source.empty()) {
        // On the heap, so that a byte beyond a buffer is seen.
        std::string target(SZ_TEXT_MAX_LEN, '\0');
        std::string next(SZ_TEXT_MAX_LEN, '\0');
        const std::string before = source;
        fuzz::require(strict.engine.eng_text_normalize(source.data(), target.data(), next.data()) ==
                      0);
        fuzz::require(source == before);
        source = next.c_str();
        fuzz::require(source.size() < before.size() || before.size() >= SZ_TEXT_MAX_LEN);
        std::string speakable = strict.tokenize(target.data());
        strict.build(speakable.data());
    }
    return 0;
}

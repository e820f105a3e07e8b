// Any bytes into the builder, with an arena that may refuse. The builder asserts that its two
// passes agree; reading by single steps must agree with them.

#include "fuzz_support.h"
#include "step_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t SHORT = 1000;  // single steps search all of the text for each tag
    kavi::fuzz::StrictEngine strict;
    std::string text = strict.take_refusals(data, size);
    const std::vector<std::string> words = strict.build(text.data());
    if (!words.empty() && !strict.may_refuse() && text.size() < SHORT) {
        kavi::fuzz::require(words == kavi::words_by_steps(strict.engine, text));
    }
    return 0;
}

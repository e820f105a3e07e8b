// Any bytes into the builder, with an arena that may refuse. The builder asserts that its two
// passes agree.

#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kavi::fuzz::StrictEngine strict;
    std::string text = strict.take_refusals(data, size);
    strict.build(text.data());
    return 0;
}

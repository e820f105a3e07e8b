// Reads the prose corpus so many times and says how many bytes each time was. scripts/bench counts
// the instructions of two such runs; their difference is what the calls take. Usage:
// bench_instructions normalize|tokenize|build|all|loop TIMES A call before the one named is made
// too, so that the difference of two names is one call's own.

#include <cstdio>
#include <cstdlib>

#include "calls.h"
#include "corpus.h"
#include "peers.h"

int main(int argc, char** argv) {
    using namespace kavi::bench;
    if (argc != 3) return 2;
    const std::string what = argv[1];
    if (what == "print") {
        for (const std::string& text :
             paragraphs(ORDINARY[0], std::strtoul(argv[2], nullptr, 10))) {
            std::puts(text.c_str());
        }
        return 0;
    }
    const auto texts = paragraphs(ORDINARY[0], 20000);
    Calls calls;
    std::size_t bytes = 0;
    for (int time = 0; time < std::atoi(argv[2]); ++time) {
        for (const std::string& text : texts) {
            bytes += text.size();
            if (what == "loop") {
                bytes += count_words(text) == 0 ? 1 : 0;
                continue;
            }
            calls.normalize(text, [&](char* sentence) {
                if (what == "normalize") return;
                char* speakable = calls.tokenize(sentence);
                if (what != "tokenize") calls.build(speakable);
            });
        }
    }
    std::printf("%zu\n", bytes);
    return 0;
}

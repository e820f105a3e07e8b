// What scripts/bench counts the instructions of. It says how many bytes it has read. Usage:
//   bench_instructions all TIMES KIND     a corpus through the three calls, so many times
//   bench_instructions loop TIMES KIND    the same through the loop that they are compared with
//   bench_instructions build BYTES KIND   one text of the kind straight into the builder
//   bench_instructions print BYTES [KIND] prints so much of that corpus, of prose without

#include <cstdio>
#include <cstdlib>

#include "calls.h"
#include "corpus.h"
#include "peers.h"

namespace kavi::bench {
namespace {

const Kind& kind_named(const std::string& name) {
    for (const auto* kinds : {&ORDINARY, &WORST}) {
        for (const Kind& kind : *kinds) {
            if (name == kind.name) return kind;
        }
    }
    if (name == LICENCES.name) return LICENCES;
    std::exit(2);
}

std::size_t run(const std::string& what, std::size_t n, const std::string& kind) {
    if (what == "print") {
        std::size_t bytes = 0;
        for (const std::string& text : paragraphs(kind_named(kind), n)) {
            bytes += text.size();
            std::puts(text.c_str());
        }
        return bytes;
    }
    Calls calls;
    if (what == "build") {
        std::string text = kind_named(kind).sentence(n, 1);
        return calls.build(text.data()) > 0 ? text.size() : 0;
    }
    const auto texts = paragraphs(kind_named(kind), 20000);
    std::size_t bytes = 0;
    for (std::size_t time = 0; time < n; ++time) {
        for (const std::string& text : texts) {
            const bool has_words = what == "loop" ? count_words(text) > 0 : calls.all(text) > 0;
            if (has_words) bytes += text.size();
        }
    }
    return bytes;
}

}  // namespace
}  // namespace kavi::bench

int main(int argc, char** argv) {
    if (argc < 3) return 2;
    const std::string what = argv[1];
    const std::size_t bytes = kavi::bench::run(what, std::strtoul(argv[2], nullptr, 10),
                                               argc > 3 ? argv[3] : kavi::bench::ORDINARY[0].name);
    if (what != "print") std::printf("%zu\n", bytes);
    return 0;
}

// What scripts/bench counts the instructions of. It says how many bytes it has read. Usage:
//   bench_instructions all TIMES KIND     a corpus through the three calls, TIMES times
//   bench_instructions floor TIMES KIND   the same through the least that they promise
//   bench_instructions loop TIMES KIND    the same through a loop over its bytes
//   bench_instructions host TIMES KIND    the same through the host layer
//   bench_instructions places TIMES KIND  the same, with the places of all words
//   bench_instructions long TIMES KIND    the same without them as one text
//   bench_instructions everyday TIMES KIND  the same through everyday English, without the calls
//   bench_instructions flite TIMES KIND   the same through flite's text analysis
//   bench_instructions espeak TIMES KIND  the same through espeak-ng, to phonemes
//   bench_instructions arena TIMES        requests and releases of small blocks; how many of each
//   bench_instructions build BYTES KIND   one text of the kind straight into the builder
//   bench_instructions print BYTES [KIND] prints so much of that corpus, of prose without
// A KIND with a "/" is a file, each of its lines a text.

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <numeric>
#include <vector>

#include "calls.h"
#include "corpus.h"
#include "floor.h"
#include "peers.h"
#include "tts_everyday.h"

namespace kavi::bench {

// What is compared with the host layer: the calls, with giving the records back.
__attribute__((noinline)) int read_bare(Calls& calls, const std::string& text) {
    return calls.all(text);
}

namespace {

// In the usual state: as much has been in use before, and came back.
std::size_t use_arena(std::size_t times) {
    constexpr std::size_t BLOCKS = 100;
    mem_stack_handle arena = mem_stack_create(0);
    std::vector<void*> blocks(BLOCKS);
    for (std::size_t time = 0; time <= times; ++time) {
        for (std::size_t i = 0; i < BLOCKS; ++i) {
            blocks[i] = mem_stack_request_buf(1 + i, MEM_COMMON, arena);
        }
        for (void* block : blocks) mem_stack_release_buf(block, 0, MEM_COMMON, arena);
    }
    mem_stack_destroy(arena);
    return (times + 1) * BLOCKS;
}

// Of less, the calls would not show themselves.
constexpr std::size_t CORPUS_BYTES = 20000;

std::vector<std::string> lines_of(const std::string& path) {
    std::ifstream file(path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) lines.push_back(line);
    return lines;
}

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
    if (what == "arena") return use_arena(n);
    Calls calls;
    if (what == "build") {
        std::string text = kind_named(kind).sentence(n, 1);
        return calls.build(text.data()) > 0 ? text.size() : 0;
    }
    const bool is_file = kind.find('/') != std::string::npos;
    auto texts = is_file ? lines_of(kind) : paragraphs(kind_named(kind), CORPUS_BYTES);
    if (what == "long") texts = {std::accumulate(texts.begin(), texts.end(), std::string())};
    Everyday everyday(nullptr);
    everyday.set_all(true);
    const auto read = [&](const std::string& text) {
        if (what == "loop") return count_words(text) > 0;
        if (what == "everyday") return !rewritten(everyday, text).empty();
        if (what == "floor") return read_floor(text) > 0;
        if (what == "flite") return flite_words(text) > 0;
        if (what == "espeak") return espeak_phonemes(text) > 0;
        if (what == "places") return read_by_host(text, true) > 0;
        if (what == "host" || what == "long") return read_by_host(text, false) > 0;
        return read_bare(calls, text) > 0;
    };
    std::size_t bytes = 0;
    for (std::size_t time = 0; time < n; ++time) {
        for (const std::string& text : texts) {
            read(text);
            bytes += text.size();
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

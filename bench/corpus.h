// Texts to measure with: always the same for the same seed.
#ifndef KAVI_BENCH_CORPUS_H
#define KAVI_BENCH_CORPUS_H

#include <cstddef>
#include <string>
#include <vector>

namespace kavi::bench {

// A kind of text: a sentence of it of at most so many bytes, none of which ends it early.
struct Kind {
    const char* name;
    std::string (*sentence)(std::size_t bytes, unsigned seed);
};

// News-like prose, prose full of numbers, prose full of markup.
extern const std::vector<Kind> ORDINARY;

// What a tokenizer, a builder or a search may take badly.
extern const std::vector<Kind> WORST;

// Paragraphs of about half a kilobyte, of sentences as long as people write them.
std::vector<std::string> paragraphs(const Kind& kind, std::size_t bytes);

}  // namespace kavi::bench

#endif  // KAVI_BENCH_CORPUS_H

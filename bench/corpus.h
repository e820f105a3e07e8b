// Texts to measure with: always the same for the same seed.
#ifndef KAVI_BENCH_CORPUS_H
#define KAVI_BENCH_CORPUS_H

#include <cstddef>
#include <string>
#include <vector>

namespace kavi::bench {

// A kind of text: a sentence of it of at most `size` bytes, none of which ends it early.
struct Kind {
    const char* name;
    std::string (*sentence)(std::size_t bytes, unsigned seed);
};

// Plain words, words and patterns by halves, a tag every four words with spans in spans, and
// news-like prose: capitals, acronyms, quotes, apostrophes, abbreviations, and in every second
// sentence a number, date, time, amount or percentage.
extern const std::vector<Kind> ORDINARY;

// The licence texts of every Debian system; it has paragraphs only.
extern const Kind LICENCES;

// What a tokenizer, a builder or a search may take badly.
extern const std::vector<Kind> WORST;

// Paragraphs of about half a kilobyte, of sentences as long as people write them; those of
// LICENCES are as they are.
std::vector<std::string> paragraphs(const Kind& kind, std::size_t bytes);

}  // namespace kavi::bench

#endif  // KAVI_BENCH_CORPUS_H

// What the engine's cost is compared with, in the same run.
#ifndef KAVI_BENCH_PEERS_H
#define KAVI_BENCH_PEERS_H

#include <cstddef>
#include <string>

namespace kavi::bench {

// Classifies every byte and counts the words: the least that any tokenizer does.
std::size_t count_words(const std::string& text);

// Text to words by flite, text to phonemes by espeak-ng, no audio. Each answers how much came out;
// 0 without the library.
std::size_t flite_words(const std::string& text);
std::size_t espeak_phonemes(const std::string& text);

}  // namespace kavi::bench

#endif  // KAVI_BENCH_PEERS_H

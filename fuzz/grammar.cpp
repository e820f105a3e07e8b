// What texts for the engine are made of. Beside its own mutations of bytes, the fuzzer puts pieces
// of this grammar into its inputs, so that it need not find out what a tag or a date looks like.

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "PostProcTN.h"
#include "post_pro_tn_eng.h"
#include "table.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t max_size);

namespace kavi::fuzz {
namespace {

using Random = std::minstd_rand;

constexpr std::size_t SETTINGS = 2;  // bytes in front of the text that say how it is to be read

std::vector<std::string> first_fields(const char* table) {
    std::vector<std::string> fields;
    for (const TableRow& row : read_table(table)) fields.push_back(row[0]);
    return fields;
}

std::size_t below(Random& random, std::size_t n) {
    return random() % n;
}

void add_digits(std::string& text, Random& random) {
    const std::size_t n = 1 + below(random, below(random, 8) == 0 ? 16 : 4);
    for (std::size_t i = 0; i < n; ++i) text += static_cast<char>('0' + below(random, 10));
}

void add_word(std::string& text, Random& random) {
    static const std::vector<std::string> words = first_fields("fuzz_words");
    if (below(random, 20) == 0) {
        text.append(below(random, 600), 'x');
    } else {
        text += words[below(random, words.size())];
    }
}

// In a pattern, "9" is some digits, "w" a word and "A" an abbreviation; any other character is
// itself.
std::string piece(Random& random) {
    static const std::vector<std::string> patterns = first_fields("fuzz_patterns");
    std::string text;
    for (const char c : patterns[below(random, patterns.size())]) {
        switch (c) {
            case '9': add_digits(text, random); break;
            case 'w': add_word(text, random); break;
            case 'A': text += s_spec_word_abbrevi[below(random, ABBREVIATIONNUMBER)][0]; break;
            default: text += c;
        }
    }
    return text;
}

// Puts a piece in or in the place of some bytes, takes some out, or says some twice.
void mutate(std::string& text, Random& random) {
    const std::size_t at = below(random, text.size() + 1);
    const std::size_t some = below(random, std::min<std::size_t>(text.size() - at, 64) + 1);
    switch (below(random, 5)) {
        case 0: text.erase(at, some); break;
        case 1: text.insert(at, text.substr(at, some)); break;
        case 2: text.replace(at, some, piece(random)); break;
        default: text.insert(at, piece(random)); break;
    }
}

}  // namespace
}  // namespace kavi::fuzz

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t max_size, unsigned int seed) {
    using namespace kavi::fuzz;
    Random random(seed);
    if (size < SETTINGS || below(random, 3) == 0) return LLVMFuzzerMutate(data, size, max_size);
    std::string text(reinterpret_cast<const char*>(data) + SETTINGS, size - SETTINGS);
    for (std::size_t n = 1 + below(random, 4); n > 0; --n) mutate(text, random);
    text.resize(std::min(text.size(), max_size - SETTINGS));
    std::copy(text.begin(), text.end(), data + SETTINGS);
    return SETTINGS + text.size();
}

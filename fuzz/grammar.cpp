// What texts for the engine are made of. Beside its own mutations of bytes, the fuzzer puts pieces
// of this grammar into its inputs, so that it need not find out what a tag or a date looks like.

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <random>
#include <string>

#include "PostProcTN.h"
#include "post_pro_tn_eng.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t max_size);

namespace kavi::fuzz {
namespace {

using Random = std::minstd_rand;

constexpr std::size_t SETTINGS = 2;  // bytes in front of the text that say how it is to be read

// In a pattern, "9" stands for some digits, "w" for a word and "A" for an abbreviation; all else
// for itself.
// clang-format off
const char* const PATTERNS[] = {
    "w", "w", "A", "A ", "w A", "9", " ", "  ", "\t", "\r\n",
    "9,9", "9,9,9", "9,9,9,9", "9,9th", "9st", "9rd", "9th",
    "9/9/9", "9-9/9", "9/w/9", "w 9", "9 w", "9-9", "9/9", "9.9", "19",
    "$9", "$9.9", "$9,9.9", "9$", "9,9.9$",
    "9:9", "9:9:9", "9:9'9", "9:w",
    "(9) 9-9", "+9 9", "Tel. 9-9", "Tel 9", "800-9-9", "9+9",
    "'w", "w'w", "(w)", "\"w\"", "[w]", "{w}",
    "!", "?", ";", ",", ".", ":", "~", "@", "#", "%", "*", "-", "/", "=", "$", "+", "(", ")", "'",
    "<", ">", "</", "\xc3\xa9", "\xff",
    "<punc=w>", "<punc=dou>", "<punc=english>", "<punc=", "<breaktime=9>", "<pause=9>", "<orgLen=9>",
    "<emphasis=w>", "</emphasis>", "<quill_effect=w>", "</quill_effect>", "<poem=w>", "</poem>",
    "<prosody=rate=\"9\" pitch=\"w\">", "<prosody=volume=\"w\" spectrum=\"9\">", "</prosody>",
    "<emphasis=w>w</emphasis>", "<poem=w>w <prosody=rate=\"9\">w</prosody></poem>",
    "<py=w>", "</py>", "<letter=w>", "</letter>", "<sil>", "<silratio=9>", "<poem1=w>", "</poem1>",
    "<emphasis=", "<prosody=", "<poem=w",
};
const char* const WORDS[] = {
    "a", "we", "word", "NASA", "st", "th", "s", "m", "ll", "re", "t", "punc", "Tel", "B", "X",
    "Jan", "May", "Sept", "January", "December", "rate", "pitch", "volume", "english",
    "dun", "dou", "fen", "ju", "shenglue",
};
// clang-format on

std::size_t below(Random& random, std::size_t n) {
    return random() % n;
}

void add_digits(std::string& text, Random& random) {
    const std::size_t n = 1 + below(random, below(random, 8) == 0 ? 16 : 4);
    for (std::size_t i = 0; i < n; ++i) text += static_cast<char>('0' + below(random, 10));
}

void add_word(std::string& text, Random& random) {
    if (below(random, 20) == 0) {
        text.append(below(random, 600), 'x');
    } else {
        text += WORDS[below(random, std::size(WORDS))];
    }
}

std::string piece(Random& random) {
    std::string text;
    for (const char* c = PATTERNS[below(random, std::size(PATTERNS))]; *c != '\0'; ++c) {
        switch (*c) {
            case '9': add_digits(text, random); break;
            case 'w': add_word(text, random); break;
            case 'A': text += s_spec_word_abbrevi[below(random, ABBREVIATIONNUMBER)][0]; break;
            default: text += *c;
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

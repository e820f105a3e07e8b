#include "corpus.h"

#include <algorithm>
#include <iterator>
#include <random>

namespace kavi::bench {

namespace {

const char* const WORDS[] = {
    "the",     "of",       "and",     "to",       "in",       "a",         "said",
    "that",    "for",      "on",      "was",      "with",     "he",        "government",
    "it",      "by",       "at",      "from",     "his",      "is",        "council",
    "be",      "an",       "has",     "year",     "new",      "minister",  "were",
    "which",   "police",   "have",    "after",    "people",   "who",       "market",
    "would",   "been",     "more",    "company",  "their",    "first",     "report",
    "over",    "city",     "two",     "percent",  "water",    "London",    "officials",
    "Tuesday", "European", "million", "between",  "last",     "national",  "school",
    "before",  "decision", "workers", "students", "American", "agreement", "northern",
    "against",
};
const char* const NUMBERS[] = {
    "3",    "42",        "$5.50", "1,234",      "3/1/2020", "10:30", "3.14", "21st",
    "1999", "$1,234.50", "7/8",   "12,345,678", "100%",     "2020",  "5-3",  "May 5",
};
const char* const TAGS[][2] = {
    {"<emphasis=strong>", "</emphasis>"},
    {"<prosody=rate=\"2\" pitch=\"3\">", "</prosody>"},
    {"<poem=verse>", "</poem>"},
};

using Random = std::minstd_rand;

template <std::size_t N>
const char* any(const char* const (&texts)[N], Random& random) {
    return texts[random() % N];
}

// Pieces one after the other for as long as there is room.
template <typename Piece>
std::string sentence_of(std::size_t bytes, unsigned seed, Piece piece) {
    Random random(seed);
    std::string text;
    for (;;) {
        const std::string next = piece(random, text.size());
        if (text.size() + next.size() > bytes) return text;
        text += next;
    }
}

std::string repeated(const std::string& piece, std::size_t bytes) {
    std::string text;
    while (text.size() + piece.size() <= bytes) text += piece;
    return text;
}

std::string distinct_name(std::size_t n) {
    std::string name;
    for (; n > 0; n /= 26) name += static_cast<char>('a' + n % 26);
    return name;
}

}  // namespace

const std::vector<Kind> ORDINARY = {
    {"prose",
     [](std::size_t bytes, unsigned seed) {
         return sentence_of(bytes, seed, [](Random& random, std::size_t) {
             return any(WORDS, random) + std::string(" ");
         });
     }},
    {"numbers",
     [](std::size_t bytes, unsigned seed) {
         return sentence_of(bytes, seed, [](Random& random, std::size_t) {
             return (random() % 2 == 0 ? any(WORDS, random) : any(NUMBERS, random)) +
                    std::string(" ");
         });
     }},
    {"markup",
     [](std::size_t bytes, unsigned seed) {
         return sentence_of(bytes, seed, [](Random& random, std::size_t) {
             const auto& tag = TAGS[random() % std::size(TAGS)];
             const std::string words =
                 any(WORDS, random) + std::string(" ") + any(WORDS, random) + " ";
             return random() % 3 == 0 ? words + "<breaktime=5> " : tag[0] + words + tag[1] + " ";
         });
     }},
};

const std::vector<Kind> WORST = {
    {"marks", [](std::size_t bytes, unsigned) { return repeated("#", bytes); }},
    {"letters", [](std::size_t bytes, unsigned) { return repeated("a ", bytes); }},
    {"nesting",
     [](std::size_t bytes, unsigned) {
         const std::size_t depth = std::min<std::size_t>(10, bytes / 24);
         std::string text = repeated("<poem=a>", depth * 8);
         text += repeated("a ", bytes - depth * 15);
         return text + repeated("</poem>", depth * 7);
     }},
    {"unclosed", [](std::size_t bytes, unsigned) { return repeated("<", bytes); }},
    {"unclosed-tags",
     [](std::size_t bytes, unsigned seed) {
         std::size_t n = 1;
         return sentence_of(bytes, seed, [n](Random&, std::size_t) mutable {
             return "<poem" + distinct_name(n++) + "=";
         });
     }},
    {"unpaired",
     [](std::size_t bytes, unsigned) {
         return repeated("<py=>a ", bytes / 3 * 2) + repeated("</py>", bytes / 3);
     }},
    {"near-misses", [](std::size_t bytes, unsigned) { return repeated("1.1 Dt. ", bytes); }},
};

std::vector<std::string> paragraphs(const Kind& kind, std::size_t bytes) {
    constexpr std::size_t PARAGRAPH = 500;
    std::vector<std::string> all;
    std::size_t total = 0;
    for (unsigned seed = 1; total < bytes;) {
        std::string paragraph;
        while (paragraph.size() < PARAGRAPH) {
            std::string sentence = kind.sentence(60 + seed * 37 % 120, seed);
            sentence.resize(sentence.find_last_not_of(' ') + 1);
            paragraph += sentence + (seed % 4 == 0 ? ", " : ". ");
            ++seed;
        }
        total += paragraph.size();
        all.push_back(paragraph);
    }
    return all;
}

}  // namespace kavi::bench

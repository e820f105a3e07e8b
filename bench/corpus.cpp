#include "corpus.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>

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

// ---- news-like: who, what, and in every second sentence a number of some kind ----

const char* const NAMES[] = {
    "NASA",
    "The BBC",
    "Dr. Miller",
    "President Ortega",
    "Lisbon's mayor",
    "The council",
    "Anna Schmidt",
    "The UN",
    "IBM",
    "A spokesman for Shell",
    "Mrs. Clarke",
    "Paris",
    "The minister",
    "Jan. Weber",
    "Toyota",
};
const char* const ACTIONS[] = {
    "said it's too early to tell",
    "didn't comment on Tuesday",
    "called the plan \"a first step\"",
    "won't take part in the talks",
    "has opened a new school near the river",
    "told reporters they're still waiting",
    "wants the EU to act, e.g. on water",
    "met workers from the northern plant",
    "lost the match (after a long break)",
};
const char* const FIGURES[] = {
    "at 10:30 on Friday",
    "by 12.5% in May",
    "for $1,250",
    "on 3/11/2024",
    "in 2019",
    "for the 21st time",
    "after 45 days",
    "on 7 Sept",
    "with 12,000 people there",
    "at $3.50 a share",
    "by 3/4",
    "since 1987",
    "in 30 of 120 towns",
    "for 1,234,567 residents",
    "on May 5",
};
const char* const ENDS[] = {". ", ". ", ". ", ", ", "? ", "! ", "; "};

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

std::string four_words(Random& random) {
    std::string words;
    for (int i = 0; i < 4; ++i) words += any(WORDS, random) + std::string(" ");
    return words;
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
             const auto& outer = TAGS[random() % std::size(TAGS)];
             const auto& inner = TAGS[random() % std::size(TAGS)];
             const std::string words[] = {four_words(random), four_words(random)};
             switch (random() % 3) {
                 case 0: return words[0] + "<breaktime=5> ";
                 case 1: return outer[0] + words[0] + outer[1] + " ";
                 default:
                     return outer[0] + words[0] + inner[0] + words[1] + inner[1] + outer[1] + " ";
             }
         });
     }},
    {"news",
     [](std::size_t bytes, unsigned seed) {
         std::string text = sentence_of(bytes, seed, [](Random& random, std::size_t) {
             std::string sentence = any(NAMES, random) + std::string(" ") + any(ACTIONS, random);
             if (random() % 2 == 0) sentence += std::string(" ") + any(FIGURES, random);
             return sentence + any(ENDS, random);
         });
         return text.empty() ? text : text.substr(0, text.size() - 1);
     }},
};

const Kind LICENCES = {"licences", nullptr};

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
    {"too-long",  // for the output: marks that grow, then words
     [](std::size_t bytes, unsigned) {
         return repeated("\"", bytes / 170) + repeated("a ", bytes - bytes / 170);
     }},
    {"near-misses", [](std::size_t bytes, unsigned) { return repeated("1.1 Dt. ", bytes); }},
};

// Paragraphs of licence texts as they are installed with every Debian system.
static std::vector<std::string> licence_paragraphs() {
    std::vector<std::string> all;
    std::set<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator("/usr/share/common-licenses")) {
        if (!entry.is_symlink()) files.insert(entry.path());
    }
    for (const auto& path : files) {
        std::ifstream file(path);
        std::string paragraph;
        for (std::string line; std::getline(file, line);) {
            if (line.empty() || paragraph.size() + line.size() >= 4000) {
                if (!paragraph.empty()) all.push_back(paragraph);
                paragraph.clear();
            }
            paragraph += line + "\n";
        }
        if (!paragraph.empty()) all.push_back(paragraph);
    }
    return all;
}

std::vector<std::string> paragraphs(const Kind& kind, std::size_t bytes) {
    constexpr std::size_t PARAGRAPH = 500;
    if (kind.sentence == nullptr) return licence_paragraphs();
    const bool ends_itself = std::string(kind.name) == "news";
    std::vector<std::string> all;
    std::size_t total = 0;
    for (unsigned seed = 1; total < bytes;) {
        std::string paragraph;
        while (paragraph.size() < PARAGRAPH) {
            std::string sentence = kind.sentence(60 + seed * 37 % 120, seed);
            if (!ends_itself) sentence.resize(sentence.find_last_not_of(' ') + 1);
            paragraph += sentence + (ends_itself ? " " : seed % 4 == 0 ? ", " : ". ");
            ++seed;
        }
        total += paragraph.size();
        all.push_back(paragraph);
    }
    return all;
}

}  // namespace kavi::bench

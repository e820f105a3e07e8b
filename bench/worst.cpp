// Looks for the texts that cost most a byte: pieces of the language, two by two, again and again.
// scripts/worst counts the instructions of what is found. Usage:
//   bench_worst search LAYER...       a line for each layer and pair: layer, pieces by number,
//                                     nanoseconds a byte of a short text, and of a long one
//   bench_worst run LAYER BYTES UNIT  the layer once, on the unit again and again; prints the bytes
//   bench_worst show P Q              the pair, as it is written
//   bench_worst layers                a line for each: its name, and the bytes of its short text
//                                     and of its long one

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iterator>
#include <string>

#include "calls.h"
#include "tts_everyday.h"
#include "tts_explain.h"
#include "tts_ssml.h"

namespace kavi::bench {
namespace {

const char* const PIECES[] = {
    "a ",
    "word ",
    "Word ",
    "WORD ",
    "May ",
    "Tel.",
    "Tel. 555-1234 ",
    "mp3 ",
    "1",
    "12 ",
    "2020 ",
    "1,",
    "1,234 ",
    "12,345,678 ",
    "123456 ",
    "21st ",
    "1,234th ",
    "3/1/2020 ",
    "1/",
    "7/8 ",
    "5-3 ",
    "3.14 ",
    "1.",
    "10:30 ",
    "10:30:15 ",
    "10:",
    "$",
    "$5.50 ",
    "$1,234 ",
    "5$ ",
    "+1 555 ",
    "(1)-555 ",
    "(",
    ")",
    "May 5 ",
    "5 May ",
    "-",
    "+",
    "*",
    "%",
    "~",
    "#",
    "@",
    "\"",
    "'",
    "'s ",
    "don't ",
    ". ",
    ", ",
    ".",
    ",",
    "?",
    "Dr. ",
    "e.g. ",
    "Dt. ",
    "\n",
    "\xC3\xA9",
    "<",
    ">",
    "<poem=a>",
    "</poem>",
    "<py=a>",
    "</py>",
    "<sil=1>",
    "<punc=dou> ",
    "<breaktime=5>",
    "<emphasis=strong>",
    // Everyday English and a lexicon.
    "\xE2\x80\x94",
    "\xE2\x80\x94 ",
    "\xE2\x80\x99s ",
    "\xE2\x80\x9C",
    "\xE2\x80\x9D ",
    "\xE2\x80\xA6",
    "\xC2\xBD",
    "\xE2\x82\xAC",
    "\xE2\x82\xAC"
    "20.99 ",
    "$1.5 million ",
    "5 EUR ",
    "5 km ",
    "25\xC2\xB0"
    "C ",
    "1990s",
    "1990s-",
    "2010-2015 ",
    "2020-03-01 ",
    "5:30 p.m. ",
    "a@b.com ",
    "www.a.com/",
    "VIII ",
    "Henry ",
    "Mr. ",
    "J. ",
    "U.S. ",
    "won't ",
    "caf\xC3\xA9 ",
    "e\xCC\x81",
    "left. ",
    "10-20% ",
    "3 1/2 ",
    "0.",
    "\xF0\x9F\x98\x80",
    "\xF0\x9F\x91\xA8\xE2\x80\x8D",
    "\xE2",
    "<poem=a",
    "<b>",
    "word word word ",
    "&",
    "/",
};

// As many whole units as `bytes` hold.
std::string repeated(const std::string& unit, std::size_t bytes) {
    std::string text;
    while (text.size() + unit.size() <= bytes) text += unit;
    return text;
}

std::string pair_of(std::size_t p, std::size_t q) {
    return std::string(PIECES[p]) + PIECES[q];
}

using Clock = std::chrono::steady_clock;
Clock::duration measured_time;

// All that is measured is done in here: while this runs, the clock does, and callgrind counts.
[[gnu::noinline]] int measured(const std::function<int()>& work) {
    const Clock::time_point begin = Clock::now();
    const int used = work();
    measured_time += Clock::now() - begin;
    return used;
}

const Lexicon& lexicon() {
    static const Lexicon read = [] {
        Lexicon all;
        std::string error;
        const bool is_good = all.add("worst",
                                     "word\tw\nword word word word word word word a\tw\n"
                                     "word word word word Word\tw\tany case\n1990s\tw\n5 km\tw\n"
                                     "Mr.\tmister\n\xE2\x80\x94\tdash\n\xF0\x9F\x98\x80\tsmile\n",
                                     error);
        if (!is_good) std::abort();
        return all;
    }();
    return read;
}

int rewrite(const Everyday& everyday, const std::string& text) {
    return measured([&] { return static_cast<int>(rewritten(everyday, text).size()); });
}

// Reads a text with all of everyday English and calls `on_sentence`, of which each measures what it
// is about. The places are known by then: the host finds those of some sentences before it calls,
// and they are the layer `places`.
int read_everyday(const std::string& text, const TtsHost::SentenceHandler& on_sentence) {
    static const Everyday everyday = [] {
        Everyday all(&lexicon());
        all.set_all(true);
        return all;
    }();
    TtsHost host;
    host.rewrite_by(&everyday);
    const auto with_places = [&](const HostSentence& sentence) {
        sentence.places.words();
        return on_sentence(sentence);
    };
    return host.read(text, with_places, nullptr) ? 1 : 0;
}

struct Layer {
    const char* name;
    std::size_t short_bytes;
    std::size_t long_bytes;
    int (*read)(std::string& text);
};

constexpr std::size_t SHORT_CALL = 256;
constexpr std::size_t LONG_CALL = SZ_TEXT_MAX_LEN - 1;
constexpr std::size_t SHORT_TEXT = 2048;
constexpr std::size_t LONG_TEXT = 16384;
// A host looks at 16 KB of a text at once.
constexpr std::size_t SHORT_PIECES = 16384;
constexpr std::size_t LONG_PIECES = 32768;

Calls calls;

// What they answer is of no use but to be used.
const Layer LAYERS[] = {
    {"normalize", SHORT_CALL, LONG_CALL,
     [](std::string& text) { return measured([&] { return calls.first_sentence(text.data()); }); }},
    {"tokenize", SHORT_CALL, LONG_CALL,
     [](std::string& text) {
         return measured([&] { return static_cast<int>(*calls.tokenize(text.data())); });
     }},
    {"build", SHORT_CALL, LONG_CALL,
     [](std::string& text) { return measured([&] { return calls.build(text.data()); }); }},
    {"everyday", SHORT_TEXT, LONG_TEXT,
     [](std::string& text) {
         static const Everyday everyday = [] {
             Everyday all(nullptr);
             all.set_all(true);
             return all;
         }();
         return rewrite(everyday, text);
     }},
    {"lexicon", SHORT_TEXT, LONG_TEXT,
     [](std::string& text) {
         static const Everyday everyday(&lexicon());
         return rewrite(everyday, text);
     }},
    {"places", SHORT_PIECES, LONG_PIECES,
     [](std::string& text) { return measured([&] { return read_by_host(text, true); }); }},
    {"explain", SHORT_PIECES, LONG_PIECES,
     [](std::string& text) {
         return read_everyday(text, [&](const HostSentence& sentence) {
             return measured([&] {
                        explain(sentence, text, [](const ExplainedRun&) {});
                        return 1;
                    }) == 1;
         });
     }},
    {"ssml", SHORT_PIECES, LONG_PIECES,
     [](std::string& text) {
         SsmlForm form(true);
         return read_everyday(text, [&](const HostSentence& sentence) {
             return measured([&] {
                        form.read(sentence, text);
                        return 1;
                    }) == 1;
         });
     }},
};

const Layer& layer_of(const char* name) {
    const Layer* layer = std::find_if(std::begin(LAYERS), std::end(LAYERS), [&](const Layer& l) {
        return std::strcmp(l.name, name) == 0;
    });
    if (layer == std::end(LAYERS)) {
        std::fprintf(stderr, "%s: no such layer\n", name);
        std::exit(2);
    }
    return *layer;
}

// Nanoseconds a byte: the least of a few runs.
double cost(const Layer& layer, std::string text) {
    constexpr int RUNS = 5;
    Clock::duration least = Clock::duration::max();
    static volatile int used;
    for (int i = 0; i < RUNS; ++i) {
        measured_time = {};
        used = layer.read(text);
        least = std::min(least, measured_time);
    }
    return std::chrono::duration<double, std::nano>(least).count() /
           static_cast<double>(text.size());
}

void search(const Layer& layer) {
    for (std::size_t p = 0; p < std::size(PIECES); ++p) {
        for (std::size_t q = 0; q < std::size(PIECES); ++q) {
            const std::string unit = pair_of(p, q);
            std::printf("%s %zu %zu %.3f %.3f\n", layer.name, p, q,
                        cost(layer, repeated(unit, layer.short_bytes)),
                        cost(layer, repeated(unit, layer.long_bytes)));
        }
    }
}

int run(int argc, char** argv) {
    const std::string what = argc > 1 ? argv[1] : "";
    const auto number = [&](int i) {
        return static_cast<std::size_t>(std::strtoul(argv[i], nullptr, 10));
    };
    if (what == "search") {
        for (int i = 2; i < argc; ++i) search(layer_of(argv[i]));
    } else if (what == "layers") {
        for (const Layer& layer : LAYERS) {
            std::printf("%s %zu %zu\n", layer.name, layer.short_bytes, layer.long_bytes);
        }
    } else if (what == "show" && argc == 4) {
        std::printf("%s", pair_of(number(2), number(3)).c_str());
    } else if (what == "run" && argc == 5) {
        std::string text = repeated(argv[4], number(3));
        layer_of(argv[2]).read(text);
        std::printf("%zu\n", text.size());
    } else {
        return 2;
    }
    return 0;
}

}  // namespace
}  // namespace kavi::bench

int main(int argc, char** argv) {
    return kavi::bench::run(argc, argv);
}

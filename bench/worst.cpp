// Looks for the texts that cost most a byte: pieces of the language, two by two, again and again.
// scripts/worst counts the instructions of what is found. Usage:
//   bench_worst search              a line for each call and pair: call, pieces by number,
//   nanoseconds
//                                   a byte of 256 bytes, and of 4,095
//   bench_worst run CALL BYTES P Q  that call once; prints the bytes
//   bench_worst show P Q            the pair, as it is written

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string>

#include "calls.h"

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
};

constexpr std::size_t SHORT = 256;
constexpr std::size_t LONG = SZ_TEXT_MAX_LEN - 1;

std::string text_of(std::size_t p, std::size_t q, std::size_t bytes) {
    const std::string pair = std::string(PIECES[p]) + PIECES[q];
    std::string text;
    while (text.size() + pair.size() <= bytes) text += pair;
    return text;
}

using Call = int (*)(Calls&, std::string&);

struct NamedCall {
    const char* name;
    Call call;
};

// Each gets the text itself. What they answer is of no use but to be used.
const NamedCall CALLS[] = {
    {"normalize",
     [](Calls& calls, std::string& text) { return calls.first_sentence(text.data()); }},
    {"tokenize", [](Calls& calls,
                    std::string& text) { return static_cast<int>(*calls.tokenize(text.data())); }},
    {"build", [](Calls& calls, std::string& text) { return calls.build(text.data()); }},
};

// Nanoseconds a byte: the least of a few runs.
double cost(Calls& calls, Call call, std::string text) {
    using Clock = std::chrono::steady_clock;
    constexpr int RUNS = 7;
    double least = 1e9;
    static volatile int used;
    for (int i = 0; i < RUNS; ++i) {
        const Clock::time_point begin = Clock::now();
        used = call(calls, text);
        const std::chrono::duration<double, std::nano> time = Clock::now() - begin;
        least = std::min(least, time.count());
    }
    return least / static_cast<double>(text.size());
}

void search() {
    Calls calls;
    for (std::size_t p = 0; p < std::size(PIECES); ++p) {
        for (std::size_t q = 0; q < std::size(PIECES); ++q) {
            for (const auto& [name, call] : CALLS) {
                std::printf("%s %zu %zu %.3f %.3f\n", name, p, q,
                            cost(calls, call, text_of(p, q, SHORT)),
                            cost(calls, call, text_of(p, q, LONG)));
            }
        }
    }
}

int run(int argc, char** argv) {
    const std::string what = argc > 1 ? argv[1] : "";
    const auto number = [&](int i) {
        return static_cast<std::size_t>(std::strtoul(argv[i], nullptr, 10));
    };
    if (what == "search") {
        search();
    } else if (what == "show" && argc == 4) {
        std::printf("%s%s\n", PIECES[number(2)], PIECES[number(3)]);
    } else if (what == "run" && argc == 6) {
        Calls calls;
        std::string text = text_of(number(4), number(5), number(3));
        for (const auto& [name, call] : CALLS) {
            if (std::strcmp(name, argv[2]) == 0) call(calls, text);
        }
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

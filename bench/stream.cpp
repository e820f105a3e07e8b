// What reading a text while it is being written takes. Usage, with the text as input:
//   bench_stream once|pieces off|on    reads it at once, or in pieces of four bytes, with everyday
//                                      English off or on; for callgrind
//   bench_stream latency off|on        gives it byte by byte and prints how many bytes come after
//                                      the end of a clause before it is told: median, of 99 in 100,
//                                      and worst, then the number of clauses

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "tts_everyday.h"
#include "tts_stream.h"

namespace kavi::bench {
namespace {

// The end of a clause, without what is silent after it.
std::size_t end_of(const TextRange& source, std::string_view text) {
    const std::string_view clause = text.substr(0, source.offset + source.length);
    return clause.find_last_not_of(" \t\r\n'\"") + 1;
}

__attribute__((noinline)) std::size_t read_once(TtsHost& host, std::string_view text) {
    std::size_t n_words = 0;
    host.read(
        text,
        [&](const HostSentence& sentence) {
            n_words += static_cast<std::size_t>(sentence.n_records);
            return true;
        },
        nullptr);
    return n_words;
}

__attribute__((noinline)) std::size_t read_in_pieces(TtsHost& host, std::string_view text) {
    constexpr std::size_t PIECE = 4;
    std::size_t n_words = 0;
    TtsStream stream(
        host,
        [&](const HostSentence& sentence) {
            n_words += static_cast<std::size_t>(sentence.n_records);
            return true;
        },
        nullptr);
    for (std::size_t at = 0; at < text.size(); at += PIECE) stream.add(text.substr(at, PIECE));
    stream.end();
    return n_words;
}

// In order of size.
std::vector<std::size_t> latencies(TtsHost& host, std::string_view text) {
    std::vector<std::size_t> found;
    std::size_t given = 0;
    TtsStream stream(
        host,
        [&](const HostSentence& sentence) {
            if (sentence.n_records > 1) found.push_back(given - end_of(sentence.source, text));
            return true;
        },
        nullptr);
    while (given < text.size()) stream.add(text.substr(given++, 1));
    stream.end();
    std::sort(found.begin(), found.end());
    return found;
}

}  // namespace
}  // namespace kavi::bench

int main(int argc, char** argv) {
    using namespace kavi::bench;
    if (argc != 3) return 2;
    const std::string what = argv[1];
    const std::string text{std::istreambuf_iterator<char>(std::cin), {}};
    kavi::Everyday everyday(nullptr);
    everyday.set_all(true);
    kavi::TtsHost host;
    if (argv[2] == std::string("on")) host.rewrite_by(&everyday);
    if (what == "once") std::printf("%zu\n", read_once(host, text));
    if (what == "pieces") std::printf("%zu\n", read_in_pieces(host, text));
    if (what != "latency") return 0;
    const std::vector<std::size_t> found = latencies(host, text);
    if (found.empty()) return 1;
    std::printf("%zu %zu %zu %zu\n", found[found.size() / 2], found[found.size() * 99 / 100],
                found.back(), found.size());
    return 0;
}

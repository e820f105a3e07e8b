// What the plain form of each line of a file costs in C++, for what calls the host layer from other
// languages: nanoseconds a line, the best of some runs.
// Usage: kavi_bench_plain FILE

#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "tts_host.h"
#include "tts_plain.h"

int main(int argc, char** argv) {
    if (argc != 2) return 1;
    std::ifstream file(argv[1]);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) lines.push_back(line);
    kavi::TtsHost host;
    kavi::PlainForm plain;
    double best = 1e18;
    std::size_t bytes = 0;
    for (int run = 0; run < 7; ++run) {
        std::vector<std::string> spoken;
        spoken.reserve(lines.size());
        const auto begin = std::chrono::steady_clock::now();
        for (const std::string& line : lines) {
            std::string all;
            host.read(
                line,
                [&](const kavi::HostSentence& sentence) {
                    plain.read(sentence, line);
                    all += plain.all();
                    return true;
                },
                nullptr);
            spoken.push_back(all);
        }
        const std::chrono::duration<double, std::nano> time =
            std::chrono::steady_clock::now() - begin;
        if (time.count() < best) best = time.count();
        for (const std::string& one : spoken) bytes += one.size();
    }
    std::printf("%.1f %zu\n", best / static_cast<double>(lines.size()), bytes);
}

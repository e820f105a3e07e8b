#include "check.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <vector>

#include "block_reader.h"
#include "names.h"
#include "readings.h"
#include "tts_host.h"

namespace kavi::tool {

namespace {

using Words = std::vector<std::string>;

std::string in_lower_case(std::string text) {
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return text;
}

Words words_of(const std::string& list) {
    std::istringstream stream(in_lower_case(list));
    Words words;
    for (std::string word; stream >> word;) words.push_back(word);
    return words;
}

Words spoken_words(TtsHost& host, std::string_view text) {
    Words words;
    host.read(
        text,
        [&](const HostSentence& sentence) {
            for (int i = 1; i < sentence.n_records; ++i) {
                words.push_back(in_lower_case(sentence.records[i].syllable));
            }
            return true;
        },
        nullptr);
    return words;
}

// The two lists one under the other, alike words in the same column.
void show(const Words& expected, const Words& spoken) {
    std::string upper = "  expected:";
    std::string lower = "  spoken:  ";
    const std::size_t n = std::max(expected.size(), spoken.size());
    for (std::size_t i = 0; i < n; ++i) {
        const std::string above = i < expected.size() ? expected[i] : "-";
        const std::string below = i < spoken.size() ? spoken[i] : "-";
        const std::size_t width = std::max(above.size(), below.size()) + 1;
        upper += std::string(width - above.size(), ' ') + above;
        lower += std::string(width - below.size(), ' ') + below;
    }
    std::cout << upper << "\n" << lower << "\n";
}

struct Result {
    std::size_t lines = 0;
    std::size_t as_expected = 0;
};

void check_line(TtsHost& host, const std::string& input, std::size_t number,
                const std::string& line, Result& result) {
    if (line.empty() || line[0] == '#') return;
    std::istringstream fields(line);
    std::string text;
    std::getline(fields, text, '\t');
    const Words spoken = spoken_words(host, text);
    Words first;
    bool is_expected = false;
    for (std::string list; std::getline(fields, list, '\t');) {
        const Words expected = words_of(list);
        if (first.empty()) first = expected;
        is_expected = is_expected || expected == spoken;
    }
    ++result.lines;
    result.as_expected += is_expected ? 1 : 0;
    if (is_expected) return;
    std::cout << shown(input) << ":" << number << ": " << text << "\n";
    show(first, spoken);
}

}  // namespace

int run_check(const Options& options) {
    Readings readings;
    if (const std::string error = readings.load(options); !error.empty()) {
        std::cerr << "kavi-tn: " << error << '\n';
        return EXIT_FAILURE;
    }
    TtsHost host;
    host.rewrite_by(readings.everyday());
    Result result;
    bool all_read = true;
    BlockReader reader(options);
    for (Block block; reader.next(block);) {
        std::istringstream lines(block.bytes);
        std::size_t number = block.first;
        for (std::string line; std::getline(lines, line); ++number) {
            check_line(host, block.input, number, line, result);
        }
        if (block.failure.empty()) continue;
        std::cerr << "kavi-tn: " << shown(block.input) << ": cannot be read: " << block.failure
                  << '\n';
        all_read = false;
    }
    std::cout << result.as_expected << " of " << result.lines << " as expected\n";
    return all_read && result.as_expected == result.lines ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace kavi::tool

// Everyday English and a lexicon, before the engine: with nothing on, every byte is as without;
// with all on, places hold, whatever was written is covered, and the cost of a text grows as its
// length does.

#include <chrono>
#include <cstdint>

#include "host_reader.h"
#include "tts_everyday.h"

namespace {

// Nanoseconds a byte that the rewriting of this text takes, said over and over up to such a size.
double cost_of_byte(const kavi::Everyday& everyday, const std::string& text, std::size_t size) {
    std::string repeated;
    while (repeated.size() < size) repeated += text;
    const auto begin = std::chrono::steady_clock::now();
    kavi::rewritten(everyday, repeated);
    const std::chrono::duration<double, std::nano> time = std::chrono::steady_clock::now() - begin;
    return time.count() / static_cast<double>(repeated.size());
}

// A search without bound would make each byte of a text of sixteen times the length cost up to
// sixteen times as much. What else the machine does costs some tries, not all.
bool is_linear(const kavi::Everyday& everyday, const std::string& text) {
    constexpr std::size_t SHORT = 16384;
    constexpr double MOST = 4;
    for (int i = 0; i < 5; ++i) {
        const double short_cost = cost_of_byte(everyday, text, SHORT);
        if (cost_of_byte(everyday, text, 16 * SHORT) < MOST * short_cost) return true;
    }
    return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kavi;
    if (size < 2) return 0;
    const std::string text(reinterpret_cast<const char*>(data) + 2, size - 2);
    TtsHost host;
    const Everyday none(nullptr);
    host.rewrite_by(&none);
    const ReadText off = read_by_layer(host, text);
    const ReadText without = read_by_layer(text);
    const bool is_same = off.normalized == without.normalized && off.records == without.records &&
                         off.places == without.places && off.sources == without.sources;
    if (!is_same || !off.fault.empty()) std::abort();

    // What stands between the settings and the first line is a lexicon's first line.
    Lexicon lexicon;
    std::string error;
    lexicon.add("fuzz", text.substr(0, text.find('\n')) + "\tspoken", error);
    Everyday everyday(&lexicon);
    everyday.set_all(true);
    everyday.set(static_cast<EverydayClass>(data[0] % EVERYDAY_CLASSES), data[0] > 127);
    everyday.set_american_dates((data[1] & 1U) != 0);
    host.rewrite_by(&everyday);
    const ReadText on = read_by_layer(host, text);
    if (!on.all_read || !on.fault.empty()) std::abort();
    const bool is_timed = data[1] % 16 == 0 && !text.empty();  // it takes ten times the rest
    if (is_timed && !is_linear(everyday, text)) std::abort();
    return 0;
}

// Everyday English and a lexicon, before the engine: with nothing on, every byte is as without;
// with all on, places hold and whatever was written is covered.

#include <cstdint>

#include "host_reader.h"
#include "tts_everyday.h"

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
    return 0;
}

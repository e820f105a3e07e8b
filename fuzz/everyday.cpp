// Everyday English and a lexicon, before the engine: with nothing on, every byte is as without;
// with all on, places hold and whatever was written is covered. A text of 64 KB takes a stack of
// 64 KB and, where steps are counted (bounds), so many a byte.

#include <cstdio>

#include "bounds.h"
#include "host_reader.h"
#include "tts_everyday.h"

namespace kavi {
namespace {

constexpr std::size_t LONG = 65536;
constexpr std::uint64_t STEPS_OF_REWRITING = 400;  // a byte
constexpr std::uint64_t STEPS_OF_READING = 1000;

void require(bool kept, const char* what) {
    if (kept) return;
    std::fprintf(stderr, "broken: %s, %llu steps\n", what,
                 static_cast<unsigned long long>(fuzz::steps));
    std::abort();
}

void is_as_without(const Everyday& none, const std::string& text) {
    TtsHost host;
    host.rewrite_by(&none);
    const ReadText off = read_by_layer(host, text);
    const ReadText without = read_by_layer(text);
    require(off.normalized == without.normalized && off.records == without.records &&
                off.places == without.places && off.sources == without.sources && off.fault.empty(),
            "as without");
}

// What was written for a text counts as it does: a lexicon may have long words for short ones.
void keeps_its_bounds(const Everyday& everyday, const std::string& text, std::size_t lexicon) {
    fuzz::on_small_stack([&] {
        fuzz::steps = 0;
        const std::size_t bytes = 1000 + lexicon + text.size() + rewritten(everyday, text).size();
        require(fuzz::steps <= STEPS_OF_REWRITING * bytes, "steps of rewriting");
        TtsHost host;
        host.rewrite_by(&everyday);
        fuzz::steps = 0;
        std::string fault;
        const bool all_read = host.read(
            text,
            [&](const HostSentence& sentence) {
                fault += fault_of_places(sentence, text);
                return true;
            },
            nullptr);
        require(fuzz::steps <= STEPS_OF_READING * bytes, "steps of reading");
        require(all_read && fault.empty(), fault.c_str());
    });
}

}  // namespace
}  // namespace kavi

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kavi;
    if (size < 3) return 0;
    const std::string unit(reinterpret_cast<const char*>(data) + 2, size - 2);
    std::string text = unit;
    while (data[1] > 127 && text.size() + unit.size() <= LONG) text += unit;
    const Everyday none(nullptr);
    if (data[1] < 64) is_as_without(none, text);

    // Lines up to an empty one are a lexicon; without one, the first word is written there.
    const std::size_t empty_line = unit.find("\n\n");
    const std::string lines = empty_line != std::string::npos
                                  ? unit.substr(0, empty_line)
                                  : unit.substr(0, unit.find_first_of(" \n")) + "\tspoken";
    Lexicon lexicon;
    std::string error;
    const bool is_good = lexicon.add("fuzz", lines, error);
    require(is_good ? error.empty() : error.compare(0, 5, "fuzz:") == 0, "told");
    Everyday everyday(data[0] % 4 == 0 ? nullptr : &lexicon);
    everyday.set_all(true);
    everyday.set(static_cast<EverydayClass>(data[0] % EVERYDAY_CLASSES), data[0] > 127);
    everyday.set_american_dates((data[1] & 1U) != 0);
    keeps_its_bounds(everyday, text, lines.size());
    return 0;
}

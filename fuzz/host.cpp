// Texts through the host layer: with small arenas, tiled without a gap, and for short texts the
// same as by hand.

#include <algorithm>

#include "host_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kavi;
    if (size < 2) return 0;
    const std::size_t capacity = data[0] < 64 ? std::size_t{data[0]} * 512 : 0;
    std::string text;
    // Repeated, to be long at little cost.
    for (int i = 0; i < 1 + data[1] % 64; ++i) {
        text.append(reinterpret_cast<const char*>(data) + 2, size - 2);
    }
    const ReadText layer = read_by_layer(text, capacity);
    const auto found = [&](auto is_wanted) {
        return std::any_of(layer.diagnostics.begin(), layer.diagnostics.end(),
                           [&](const Diagnostic& d) { return is_wanted(d.finding); });
    };
    if (found([](Finding f) { return f == Finding::arena_too_small; }) == layer.all_read)
        std::abort();
    if (capacity != 0) return 0;
    if (!layer.all_read) std::abort();
    const bool changed =
        found([](Finding f) { return f <= Finding::tag_never_closed || f == Finding::nul_byte; });
    const bool long_sentence =
        std::any_of(layer.normalized.begin(), layer.normalized.end(),
                    [](const std::string& sentence) { return sentence.size() > 1400; });
    if (text.size() >= SZ_TEXT_MAX_LEN || changed || long_sentence) return 0;
    const ReadText hand = read_by_hand(text);
    if (!hand.all_read) return 0;  // the engine alone does not hold it
    if (layer.normalized != hand.normalized || layer.speakable != hand.speakable ||
        layer.records != hand.records) {
        std::abort();
    }
    return 0;
}

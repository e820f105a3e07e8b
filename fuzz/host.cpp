// One host layer reads a text piece by piece, with a small arena or a large one: every piece is
// covered without a gap, every word has its place, and what could not be read is reported.

#include <algorithm>

#include "host_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kavi;
    if (size < 2) return 0;
    const std::size_t capacity = data[0] < 128 ? std::size_t{data[0]} * 512 : 0;
    std::string text;
    // Repeated, to be long at little cost.
    for (int i = 0; i < 1 + data[1] % 16; ++i) {
        text.append(reinterpret_cast<const char*>(data) + 2, size - 2);
    }
    const std::size_t piece_size = 1 + data[1] / 16 * text.size() / 16;
    TtsHost host(capacity);
    for (std::size_t at = 0; at < text.size(); at += piece_size) {
        const std::string piece = text.substr(at, piece_size);
        const ReadText read = read_by_layer(host, piece);
        const bool refused =
            std::any_of(read.diagnostics.begin(), read.diagnostics.end(),
                        [](const Diagnostic& d) { return d.finding == Finding::arena_too_small; });
        if (refused == read.all_read || (capacity == 0 && refused)) std::abort();
        if (!read.fault.empty()) std::abort();
        if (!read.all_read) continue;
        const ReadText rest = read_by_layer(host, piece.substr(read.covered));
        if (!rest.sources.empty()) std::abort();
    }
    return 0;
}

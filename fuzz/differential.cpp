// The same by two ways: a text by the host layer and by hand, a text and the same with doubled
// blanks, the arena and the system allocator.

#include <algorithm>

#include "arena_twins.h"
#include "common/ascii.h"
#include "host_reader.h"

namespace kavi {
namespace {

void require(bool kept) {
    if (!kept) std::abort();
}

bool same(const ReadText& a, const ReadText& b) {
    return a.normalized == b.normalized && a.speakable == b.speakable && a.records == b.records;
}

// By hand, the engine drops what is after malformed markup, and cuts long sentences elsewhere.
void layer_and_hand(const std::string& text) {
    if (text.size() >= SZ_TEXT_MAX_LEN) return;
    const ReadText layer = read_by_layer(text);
    const bool changed =
        std::any_of(layer.diagnostics.begin(), layer.diagnostics.end(), [](const Diagnostic& d) {
            return d.finding <= Finding::tag_never_closed || d.finding == Finding::nul_byte;
        });
    const bool long_sentence =
        std::any_of(layer.normalized.begin(), layer.normalized.end(),
                    [](const std::string& sentence) { return sentence.size() > 1400; });
    if (changed || long_sentence) return;
    const ReadText hand = read_by_hand(text);
    require(!hand.all_read || same(layer, hand));
}

// Between words, where no number is near, one blank is as good as two.
void doubled_blanks(const std::string& text) {
    constexpr std::size_t SHORT = 250;  // so that nothing becomes too long for a buffer
    if (text.size() > SHORT || std::any_of(text.begin(), text.end(), tn::is_digit)) return;
    std::string doubled;
    bool in_tag = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        in_tag = (in_tag || text[i] == '<') && text[i] != '>';
        doubled += text[i];
        if (text[i] == ' ' && !in_tag && i > 0 && tn::is_letter(text[i - 1]) &&
            i + 1 < text.size() && tn::is_letter(text[i + 1])) {
            doubled += ' ';
        }
    }
    require(read_by_layer(text).records == read_by_layer(doubled).records);
}

}  // namespace
}  // namespace kavi

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const std::string text(reinterpret_cast<const char*>(data) + 2, size - 2);
    switch (data[0] % 4) {
        case 0:
            kavi::require(kavi::broken_promise(text, std::size_t{data[1]} * 256).empty());
            break;
        case 1: kavi::doubled_blanks(text); break;
        default: kavi::layer_and_hand(text); break;
    }
    return 0;
}

#include "tts_rewriter.h"

#include <algorithm>

namespace kavi {

void Rewriting::drop(std::size_t length) {
    const auto moved = [=](std::size_t at) { return at - std::min(at, length); };
    const std::size_t end = moved(source.offset + source.length);
    source.offset = moved(source.offset);
    source.length = end - source.offset;
    decided = moved(decided);
    tag_end = moved(tag_end);
}

std::size_t find_ahead(std::string_view text, std::size_t at, char c, std::size_t most,
                       std::size_t& searched) {
    const std::size_t end = at + std::min(most, text.size() - at);
    searched = std::max(searched, at);
    if (searched < end) searched = std::min(text.substr(0, end).find(c, searched), end);
    return searched < end ? searched : std::string_view::npos;
}

std::string rewritten(const TextRewriter& rewriter, std::string_view text) {
    std::string read;
    Rewriting rewriting;
    std::size_t from = 0;  // of the text, what has not been read
    while (rewriter.next(text, rewriting)) {
        read += text.substr(from, rewriting.source.offset - from);
        read += rewriting.words;
        from = rewriting.source.offset + rewriting.source.length;
    }
    return read += text.substr(from);
}

}  // namespace kavi

#include "tts_rewriter.h"

namespace kavi {

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

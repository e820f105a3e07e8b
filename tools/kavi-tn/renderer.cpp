#include "renderer.h"

#include <utility>

#include "names.h"

namespace kavi::tool {

Renderer::Renderer(const Options& options, const Everyday* everyday)
    : delimiter_(options.delimiter),
      writes_findings_(!options.findings.empty()),
      format_(make_format(options)) {
    host_.rewrite_by(everyday);
}

void Renderer::render(const Block& block, const Take& take) {
    piece_ = {};
    taken_ = 0;
    shown_input_ = shown(block.input);
    const std::string name = "kavi-tn: " + shown_input_ + ": ";
    if (!block.notice.empty()) piece_.notice = name + block.notice + "\n";
    Location location = {block.input, block.number, block.first, 0, {}};
    std::size_t size = block.bytes.size();
    if (block.long_text != nullptr) {
        location.text = block.long_text->text();
        size = location.text.size();
        render_text(location, [&](std::size_t begin, std::size_t end) {
            block.long_text->forget(begin);
            hand_over_if_large(end, take);
        });
    }
    for (std::size_t at = 0; at < block.bytes.size(); ++location.line) {
        const std::string_view rest = std::string_view(block.bytes).substr(at);
        location.text = rest.substr(0, rest.find(delimiter_));
        render_text(location,
                    [&](std::size_t, std::size_t end) { hand_over_if_large(at + end, take); });
        at += location.text.size() + 1;
    }
    piece_.lost = format_->take_lost();
    if (!block.failure.empty()) {
        piece_.failure = name + "cannot be read: " + block.failure + "\n";
        piece_.all_read = false;
    }
    piece_.bytes = size - taken_;
    take(std::move(piece_));
}

// After each sentence calls `after` with where in the text it begins and ends.
template <typename After>
void Renderer::render_text(Location location, After after) {
    diagnostics_.clear();
    const bool all_read = host_.read(
        location.text,
        [&](const HostSentence& sentence) {
            ++location.sentence;
            format_->write(location, sentence, diagnostics_, piece_.output);
            diagnostics_.clear();
            after(sentence.source.offset, sentence.source.offset + sentence.source.length);
            return true;
        },
        [&](const Diagnostic& diagnostic) {
            diagnostics_.push_back(diagnostic);
            const std::string message =
                describe(diagnostic, location.part({diagnostic.offset, diagnostic.length}));
            piece_.findings.push_back(
                {diagnostic.finding, text_line(diagnostic, shown_input_, location.line, message)});
            if (!writes_findings_) return true;
            piece_.findings.back().json =
                json_line(diagnostic, location.input, location.line, message);
            return true;
        });
    format_->end_text(location, diagnostics_, piece_.output);
    piece_.all_read = piece_.all_read && all_read;
    ++piece_.texts;
}

// Hands over what has been written, which was made from the block up to `end`.
void Renderer::hand_over_if_large(std::size_t end, const Take& take) {
    constexpr std::size_t OUTPUT_BYTES = std::size_t{4} << 20U;
    constexpr std::size_t FINDINGS = 10000;
    if (piece_.output.size() < OUTPUT_BYTES && piece_.findings.size() < FINDINGS) return;
    piece_.bytes = end - taken_;
    taken_ = end;
    take(std::exchange(piece_, {}));
}

}  // namespace kavi::tool

#include "renderer.h"

#include <algorithm>

#include "names.h"

namespace kavi::tool {

Renderer::Renderer(const Options& options, const Everyday* everyday)
    : delimiter_(options.delimiter), format_(make_format(options)) {
    host_.rewrite_by(everyday);
}

Rendered Renderer::render(const Block& block) {
    Rendered rendered;
    const std::string name = "kavi-tn: " + shown(block.input) + ": ";
    if (!block.notice.empty()) rendered.notice = name + block.notice + "\n";
    std::string_view rest = block.bytes;
    for (std::size_t line = block.first; !rest.empty(); ++line) {
        const std::string_view text = rest.substr(0, rest.find(delimiter_));
        render_text({block.input, block.number, line, 0, text}, rendered);
        ++rendered.texts;
        rest.remove_prefix(std::min(text.size() + 1, rest.size()));
    }
    rendered.lost = format_->take_lost();
    if (!block.failure.empty()) {
        rendered.failure = name + "cannot be read: " + block.failure + "\n";
        rendered.all_read = false;
    }
    return rendered;
}

void Renderer::render_text(const Place& text, Rendered& rendered) {
    Place place = text;
    diagnostics_.clear();
    const bool all_read = host_.read(
        text.text,
        [&](const HostSentence& sentence) {
            ++place.sentence;
            format_->write(place, sentence, diagnostics_, rendered.output);
            diagnostics_.clear();
            return true;
        },
        [&](const Diagnostic& diagnostic) {
            diagnostics_.push_back(diagnostic);
            rendered.findings.push_back(
                {diagnostic.finding, shown(text.input) + ":" + std::to_string(text.line) +
                                         ": byte " + std::to_string(diagnostic.offset) + ": " +
                                         describe(diagnostic, text.text) + "\n"});
            return true;
        });
    format_->end_text(place, diagnostics_, rendered.output);
    rendered.all_read = rendered.all_read && all_read;
}

}  // namespace kavi::tool

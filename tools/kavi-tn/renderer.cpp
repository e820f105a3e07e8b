#include "renderer.h"

#include <algorithm>

#include "names.h"

namespace kavi::tool {

Renderer::Renderer(const Options& options)
    : delimiter_(options.delimiter), format_(make_format(options)) {}

Rendered Renderer::render(const Block& block) {
    Rendered rendered;
    std::string_view rest = block.bytes;
    for (std::size_t line = block.first; !rest.empty(); ++line) {
        const std::string_view text = rest.substr(0, rest.find(delimiter_));
        render_text(block, line, text, rendered);
        ++rendered.texts;
        rest.remove_prefix(std::min(text.size() + 1, rest.size()));
    }
    if (!block.failure.empty()) {
        rendered.failure = "kavi-tn: " + block.input + ": cannot be read: " + block.failure + "\n";
        rendered.all_read = false;
    }
    return rendered;
}

void Renderer::render_text(const Block& block, std::size_t line, std::string_view text,
                           Rendered& rendered) {
    std::vector<Diagnostic> diagnostics;  // of the sentence to come
    std::size_t sentences = 0;
    const bool all_read = host_.read(
        text,
        [&](const HostSentence& sentence) {
            const Place place = {block.input, line, ++sentences, text};
            format_->write(place, sentence, diagnostics, rendered.output);
            diagnostics.clear();
            return true;
        },
        [&](const Diagnostic& diagnostic) {
            diagnostics.push_back(diagnostic);
            rendered.findings.push_back(
                {diagnostic.finding, block.input + ":" + std::to_string(line) + ":" +
                                         std::to_string(diagnostic.offset + 1) + ": " +
                                         describe(diagnostic, text) + "\n"});
            return true;
        });
    rendered.all_read = rendered.all_read && all_read;
}

}  // namespace kavi::tool

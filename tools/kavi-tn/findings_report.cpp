#include "findings_report.h"

#include "json_line.h"

namespace kavi::tool {

std::string text_line(const Diagnostic& diagnostic, std::string_view input, std::size_t line,
                      const std::string& message) {
    return std::string(input) + ":" + std::to_string(line) + ": byte " +
           std::to_string(diagnostic.offset) + ": " + message + "\n";
}

std::string json_line(const Diagnostic& diagnostic, std::string_view input, std::size_t line,
                      const std::string& message) {
    JsonLine object;
    object.begin();
    object.field("input", input);
    object.field("line", line);
    object.range({diagnostic.offset, diagnostic.length});
    object.plain_field("code", code_of(diagnostic.finding));
    object.field("message", message);
    std::string text;
    object.end(text);
    return text;
}

std::string FindingsReport::take(const std::vector<FindingMessage>& messages) {
    std::string lines;
    for (const FindingMessage& message : messages) {
        if (++counts_[message.finding] <= WRITTEN_OF_A_KIND) lines += message.text;
    }
    return lines;
}

std::string FindingsReport::not_written() const {
    std::string lines;
    for (const auto& [finding, count] : counts_) {
        if (count <= WRITTEN_OF_A_KIND) continue;
        lines += "kavi-tn: " + std::to_string(count - WRITTEN_OF_A_KIND) +
                 " more: " + describe(finding) + "\n";
    }
    return lines;
}

std::string FindingsReport::summary() const {
    if (counts_.empty()) return "kavi-tn: no findings\n";
    std::string lines;
    for (const auto& [finding, count] : counts_) {
        lines += "kavi-tn: " + std::to_string(count) + " " + code_of(finding) + ": " +
                 describe(finding) + "\n";
    }
    return lines;
}

}  // namespace kavi::tool

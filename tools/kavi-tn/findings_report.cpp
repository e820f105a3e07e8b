#include "findings_report.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include "names.h"

namespace kavi::tool {

std::string json_line(const Diagnostic& diagnostic, std::string_view input, std::size_t line,
                      const std::string& message) {
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    const auto add_text = [&](const char* key, std::string_view value) {
        const std::string valid = valid_utf8(value);
        writer.Key(key);
        writer.String(valid.data(), static_cast<rapidjson::SizeType>(valid.size()));
    };
    const auto add_number = [&](const char* key, std::size_t value) {
        writer.Key(key);
        writer.Uint64(value);
    };
    writer.StartObject();
    add_text("input", input);
    add_number("line", line);
    add_number("offset", diagnostic.offset);
    add_number("length", diagnostic.length);
    add_text("code", code_of(diagnostic.finding));
    add_text("message", message);
    writer.EndObject();
    return std::string(buffer.GetString(), buffer.GetSize()) + "\n";
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

#include "findings_report.h"

#include <utf8.h>

#include <iomanip>
#include <iterator>
#include <set>
#include <sstream>

namespace kavi::tool {

std::string describe(const Diagnostic& diagnostic, std::string_view text) {
    if (diagnostic.finding != Finding::not_spoken) return kavi::describe(diagnostic.finding);
    const std::string_view bytes = text.substr(diagnostic.offset, diagnostic.length);
    if (!utf8::is_valid(bytes.begin(), bytes.end()))
        return "bytes that are not UTF-8 are not spoken";
    std::set<char32_t> characters;
    for (const auto* at = bytes.begin(); at != bytes.end();) {
        characters.insert(utf8::next(at, bytes.end()));
    }
    std::ostringstream list;
    for (const char32_t c : characters) {
        std::string character;
        utf8::append(c, std::back_inserter(character));
        list << (c == *characters.begin() ? "" : ", ") << "\"" << character << "\" U+" << std::hex
             << std::uppercase << std::setw(4) << std::setfill('0') << static_cast<unsigned>(c);
    }
    return list.str() + (characters.size() == 1 ? " is not spoken" : " are not spoken");
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

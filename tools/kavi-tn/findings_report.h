// Messages about findings, and how many there were of each kind.
#ifndef KAVI_TOOL_FINDINGS_REPORT_H
#define KAVI_TOOL_FINDINGS_REPORT_H

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tts_findings.h"

namespace kavi::tool {

// A finding, a line about it, and a line of JSON about it, or "" when none is wanted.
struct FindingMessage {
    Finding finding;
    std::string text;
    std::string json = {};
};

// A line "INPUT:LINE: byte OFFSET: MESSAGE".
std::string text_line(const Diagnostic& diagnostic, std::string_view input, std::size_t line,
                      const std::string& message);

// A line of JSON: an object with input, line, offset, length, code and message.
std::string json_line(const Diagnostic& diagnostic, std::string_view input, std::size_t line,
                      const std::string& message);

// Counts the findings of all inputs. The first of each kind are written, the others only counted.
class FindingsReport {
  public:
    // Takes the messages in the order of the input; returns those to write, a line each.
    std::string take(const std::vector<FindingMessage>& messages);

    // How many of each kind were not written.
    std::string not_written() const;

    // How many there were of each kind.
    std::string summary() const;

    bool empty() const { return counts_.empty(); }

  private:
    static constexpr std::size_t WRITTEN_OF_A_KIND = 20;

    std::map<Finding, std::size_t> counts_;
};

}  // namespace kavi::tool

#endif  // KAVI_TOOL_FINDINGS_REPORT_H

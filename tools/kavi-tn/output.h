// Where the output goes, and what is shown on the way.
#ifndef KAVI_TOOL_OUTPUT_H
#define KAVI_TOOL_OUTPUT_H

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include "options.h"

namespace kavi::tool {

// Standard output or a file, written in whole pieces. Every operation answers why it failed, or
// nothing.
class Output {
  public:
    std::string open(const std::string& path);  // "": standard output
    std::string write(std::string_view piece);
    std::string close();

  private:
    int descriptor_ = -1;
};

// Bytes done, rate and time left on standard error: only on a terminal, and only for files.
class Progress {
  public:
    explicit Progress(const Options& options);
    void advance(std::size_t bytes);
    void clear();  // before anything else is written there, and at the end

  private:
    using Clock = std::chrono::steady_clock;

    std::uintmax_t total_ = 0;  // 0: nothing is shown
    std::uintmax_t done_ = 0;
    bool shown_ = false;
    Clock::time_point begin_ = Clock::now();
    Clock::time_point last_ = begin_;
};

// Messages, in colour on a terminal unless NO_COLOR is set.
void write_messages(std::string_view messages);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_OUTPUT_H

// Where the output goes, and what is shown on the way.
#ifndef KAVI_TOOL_OUTPUT_H
#define KAVI_TOOL_OUTPUT_H

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include "options.h"

namespace kavi::tool {

// Standard output or a file, written in whole pieces. A file is written under another name beside
// its own, which it takes when all is written: until then the file there is as it was, and may be
// an input. What cannot be renamed, such as a pipe or a device, is written directly. Every
// operation answers why it failed, or nothing.
class Output {
  public:
    Output() = default;
    ~Output() { abandon(); }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    std::string open(const std::string& path);  // "": standard output
    std::string write(std::string_view piece);

    // All is written.
    std::string commit();

    // What was written to a file is not to be kept.
    void abandon();

  private:
    std::string open_beside(const std::string& target, unsigned mode);

    int descriptor_ = -1;
    std::string target_;     // empty: nothing is to be renamed
    std::string temporary_;  // its name until then
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

// Where the output goes, and what is shown on the way.
#ifndef KAVI_TOOL_OUTPUT_H
#define KAVI_TOOL_OUTPUT_H

#include <chrono>
#include <cstdint>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "options.h"

namespace kavi::tool {

// Standard output or a file, written in whole pieces. A file is written under another name beside
// its own, which it takes when all is on the disk: until then the file there is as it was, and may
// be an input. A link stays one: the file that it names is written. What cannot be renamed is
// written directly: a pipe, a device, a file that is mounted, or one of this process's open files,
// such as /dev/stdout, at its current offset. Operations return the system's error number,
// IS_INPUT, or 0.
class Output {
  public:
    static constexpr int IS_INPUT = -1;
    static std::string describe(int error);

    Output() = default;
    ~Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    // "": standard output. IS_INPUT when writing would change one of the inputs while it is read.
    int open(const std::string& path, const std::vector<std::string>& inputs = {});
    int write(std::string_view piece);
    bool is_terminal() const;

    // To be called when all is written: gives the file its name.
    int commit();

    // Drops what was written. True when the file is as it was; false for what is written directly,
    // and after commit(). May be called by another thread than the other operations, before the
    // process ends.
    bool abandon();

  private:
    int open_directly(const std::string& path, const std::vector<std::string>& inputs);
    int open_beside(const std::string& target, unsigned mode);
    int close();

    int descriptor_ = -1;
    std::mutex renaming_;    // of what follows
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

// Messages, visible as in names.h, in colour on a terminal that has any, unless NO_COLOR says not
// to.
void write_messages(std::string_view messages);

// On a terminal, that standard input is read from it, if the options ask for that.
void announce_terminal(const Options& options);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_OUTPUT_H

#include "output.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iomanip>
#include <iostream>

#include "names.h"

namespace kavi::tool {

namespace {

constexpr const char* CLEAR_TO_END = "\033[K";

// Whether messages go to a terminal that can do more than write lines.
bool has_terminal() {
    const char* terminal = std::getenv("TERM");
    const bool is_dumb = terminal == nullptr || std::string_view(terminal) == "dumb";
    return !is_dumb && isatty(STDERR_FILENO) != 0;
}

// As no-color.org has it: set, and not to the empty text.
bool wants_colour() {
    const char* no_colour = std::getenv("NO_COLOR");
    return has_terminal() && (no_colour == nullptr || *no_colour == '\0');
}

}  // namespace

int Output::open(const std::string& path) {
    constexpr mode_t PERMISSIONS = 07777;
    if (path.empty()) {
        descriptor_ = STDOUT_FILENO;
        return 0;
    }
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0) {
        constexpr mode_t NEW_FILE = 0666;
        const mode_t mask = ::umask(0);
        ::umask(mask);
        return open_beside(path, NEW_FILE & ~mask);
    }
    if (S_ISREG(status.st_mode)) {
        // A link stays one: the file that it names is replaced.
        return open_beside(std::filesystem::canonical(path), status.st_mode & PERMISSIONS);
    }
    descriptor_ = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
    return descriptor_ < 0 ? errno : 0;
}

int Output::open_beside(const std::string& target, unsigned mode) {
    const std::lock_guard lock(renaming_);
    std::string name = target + ".XXXXXX";
    descriptor_ = ::mkostemp(name.data(), O_CLOEXEC);
    if (descriptor_ < 0) return errno;
    target_ = target;
    temporary_ = name;
    return ::fchmod(descriptor_, mode) != 0 ? errno : 0;
}

int Output::write(std::string_view piece) {
    while (!piece.empty()) {
        const ssize_t n = ::write(descriptor_, piece.data(), piece.size());
        if (n < 0 && errno != EINTR) return errno;
        if (n > 0) piece.remove_prefix(static_cast<std::size_t>(n));
    }
    return 0;
}

bool Output::is_terminal() const {
    return ::isatty(descriptor_) != 0;
}

int Output::commit() {
    const std::lock_guard lock(renaming_);
    const bool closed = ::close(descriptor_) == 0;
    descriptor_ = -1;
    const bool renamed =
        closed && (target_.empty() || std::rename(temporary_.c_str(), target_.c_str()) == 0);
    if (!renamed) return errno;
    target_.clear();
    return 0;
}

bool Output::abandon() {
    const std::lock_guard lock(renaming_);
    if (target_.empty()) return false;
    static_cast<void>(::unlink(temporary_.c_str()));
    target_.clear();
    return true;
}

Progress::Progress(const Options& options) {
    if (!has_terminal()) return;
    for (const std::string& file : options.files) {
        std::error_code error;
        const std::uintmax_t size = std::filesystem::file_size(file, error);
        if (error) {  // a pipe or standard input among them: nobody knows how much there is
            total_ = 0;
            return;
        }
        total_ += size;
    }
}

void Progress::advance(std::size_t bytes) {
    constexpr std::chrono::milliseconds INTERVAL(200);
    constexpr double MEGABYTE = 1e6;
    done_ += bytes;
    const Clock::time_point now = Clock::now();
    if (total_ == 0 || now - last_ < INTERVAL) return;
    last_ = now;
    const double seconds = std::chrono::duration<double>(now - begin_).count();
    const double rate = static_cast<double>(done_) / seconds;
    std::cerr << std::fixed << std::setprecision(1) << '\r' << static_cast<double>(done_) / MEGABYTE
              << " of " << static_cast<double>(total_) / MEGABYTE << " MB, " << rate / MEGABYTE
              << " MB/s, " << std::setprecision(0) << static_cast<double>(total_ - done_) / rate
              << " s left" << CLEAR_TO_END;
    shown_ = true;
}

void Progress::clear() {
    if (shown_) std::cerr << '\r' << CLEAR_TO_END;
    shown_ = false;
}

void write_messages(std::string_view messages) {
    static const bool in_colour = wants_colour();
    if (messages.empty()) return;
    std::cerr << (in_colour ? "\033[33m" : "") << visible(messages) << (in_colour ? "\033[0m" : "");
}

void announce_terminal(const Options& options) {
    const bool reads_it = std::count(options.files.begin(), options.files.end(), "-") > 0;
    if (reads_it && isatty(STDIN_FILENO) != 0 && isatty(STDERR_FILENO) != 0) {
        write_messages("kavi-tn: reading from the terminal; Ctrl-D on a line of its own ends it\n");
    }
}

}  // namespace kavi::tool

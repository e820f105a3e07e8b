#include "output.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iomanip>
#include <iostream>

namespace kavi::tool {

namespace {

constexpr const char* CLEAR_TO_END = "\033[K";

bool is_terminal() {
    return isatty(STDERR_FILENO) != 0;
}

}  // namespace

std::string Output::open(const std::string& path) {
    constexpr mode_t PERMISSIONS = 07777;
    if (path.empty()) {
        descriptor_ = STDOUT_FILENO;
        return {};
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
    return descriptor_ < 0 ? path + ": " + std::strerror(errno) : "";
}

std::string Output::open_beside(const std::string& target, unsigned mode) {
    std::string name = target + ".XXXXXX";
    descriptor_ = ::mkostemp(name.data(), O_CLOEXEC);
    if (descriptor_ < 0) return target + ": " + std::strerror(errno);
    target_ = target;
    temporary_ = name;
    return ::fchmod(descriptor_, mode) != 0 ? target + ": " + std::strerror(errno) : "";
}

std::string Output::write(std::string_view piece) {
    while (!piece.empty()) {
        const ssize_t n = ::write(descriptor_, piece.data(), piece.size());
        if (n < 0 && errno != EINTR) return std::strerror(errno);
        if (n > 0) piece.remove_prefix(static_cast<std::size_t>(n));
    }
    return {};
}

std::string Output::commit() {
    const bool closed = ::close(descriptor_) == 0;
    descriptor_ = -1;
    const bool renamed =
        closed && (target_.empty() || std::rename(temporary_.c_str(), target_.c_str()) == 0);
    if (!renamed) return std::strerror(errno);
    target_.clear();
    return {};
}

void Output::abandon() {
    if (target_.empty()) return;
    if (descriptor_ >= 0) static_cast<void>(::close(descriptor_));
    static_cast<void>(::unlink(temporary_.c_str()));
    target_.clear();
}

Progress::Progress(const Options& options) {
    if (!is_terminal()) return;
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
    static const bool in_colour = is_terminal() && std::getenv("NO_COLOR") == nullptr;
    if (messages.empty()) return;
    std::cerr << (in_colour ? "\033[33m" : "") << messages << (in_colour ? "\033[0m" : "");
}

}  // namespace kavi::tool

#include "output.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <optional>
#include <utility>

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

// Of a name such as /dev/fd/1.
std::optional<int> number_of_open_file(const std::string& path) {
    for (const std::string_view folder : {"/dev/fd/", "/proc/self/fd/"}) {
        if (path.compare(0, folder.size(), folder) != 0) continue;
        int number = 0;
        const char* end = path.data() + path.size();
        const auto [rest, error] = std::from_chars(path.data() + folder.size(), end, number);
        if (error == std::errc() && rest == end) return number;
    }
    return {};
}

// The file that a name denotes, whether it exists or not: links are followed, but not into the
// open files of this process.
std::string end_of_links(std::filesystem::path path) {
    constexpr int LINKS_MAX = 40;
    for (int i = 0; i < LINKS_MAX && !number_of_open_file(path); ++i) {
        std::error_code error;
        const std::filesystem::path next = std::filesystem::read_symlink(path, error);
        if (error) break;
        path = path.parent_path() / next;
    }
    return path;
}

// What is bound over a file cannot be replaced by renaming.
bool is_mounted(const std::string& path) {
#ifdef STATX_ATTR_MOUNT_ROOT
    struct statx status = {};
    return ::statx(AT_FDCWD, path.c_str(), 0, STATX_BASIC_STATS, &status) == 0 &&
           (status.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0;
#else
    return false;
#endif
}

// Whether one of the inputs, "-" for standard input, is this file.
bool is_any(const struct stat& file, const std::vector<std::string>& inputs) {
    return std::any_of(inputs.begin(), inputs.end(), [&](const std::string& input) {
        struct stat status = {};
        const int result =
            input == "-" ? ::fstat(STDIN_FILENO, &status) : ::stat(input.c_str(), &status);
        return result == 0 && status.st_dev == file.st_dev && status.st_ino == file.st_ino;
    });
}

// A name for mkostemp beside `target`, which may have as many bytes as a name can. It is not cut
// within a character.
std::string name_beside(const std::string& target) {
    constexpr std::string_view ENDING = ".XXXXXX";
    constexpr std::size_t LONGEST = NAME_MAX - ENDING.size();
    const std::size_t begin = target.rfind('/') + 1;
    std::size_t size = std::min(target.size() - begin, LONGEST);
    const auto is_inside = [&](std::size_t at) {
        return at < target.size() && (static_cast<unsigned char>(target[at]) & 0xC0U) == 0x80;
    };
    while (size > 0 && is_inside(begin + size)) --size;
    return target.substr(0, begin + size).append(ENDING);
}

}  // namespace

Output::~Output() {
    abandon();
    close();
}

std::string Output::describe(int error) {
    return error == IS_INPUT ? "it is an input" : std::strerror(error);
}

int Output::open(const std::string& path, const std::vector<std::string>& inputs) {
    constexpr mode_t NEW_FILE = 0666;
    constexpr mode_t PERMISSIONS = 0777;
    const std::string target = end_of_links(path);
    struct stat status = {};
    if (path.empty() || number_of_open_file(target)) return open_directly(target, inputs);
    if (::stat(target.c_str(), &status) == 0) {
        const bool is_replaced = S_ISREG(status.st_mode) && !is_mounted(target);
        return is_replaced ? open_beside(target, status.st_mode & PERMISSIONS)
                           : open_directly(target, inputs);
    }
    if (errno != ENOENT) return errno;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return open_beside(target, NEW_FILE & ~mask);
}

int Output::open_directly(const std::string& path, const std::vector<std::string>& inputs) {
    const std::optional<int> number = path.empty() ? STDOUT_FILENO : number_of_open_file(path);
    descriptor_ =
        number ? ::fcntl(*number, F_DUPFD_CLOEXEC, 0) : ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
    struct stat status = {};
    if (descriptor_ < 0 || ::fstat(descriptor_, &status) != 0) return errno;
    const bool is_file = S_ISREG(status.st_mode);
    if (is_file && status.st_size > 0 && is_any(status, inputs)) return IS_INPUT;
    return is_file && !number && ::ftruncate(descriptor_, 0) != 0 ? errno : 0;
}

int Output::open_beside(const std::string& target, unsigned mode) {
    const std::lock_guard lock(renaming_);
    std::string name = name_beside(target);
    descriptor_ = ::mkostemp(name.data(), O_CLOEXEC);
    if (descriptor_ < 0) return errno;
    target_ = target;
    temporary_ = name;
    return ::fchmod(descriptor_, mode) != 0 ? errno : 0;
}

int Output::close() {
    const int descriptor = std::exchange(descriptor_, -1);
    return descriptor >= 0 && ::close(descriptor) != 0 ? errno : 0;
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
    if (!target_.empty() && ::fsync(descriptor_) != 0) return errno;
    if (const int error = close(); error != 0 || target_.empty()) return error;
    if (std::rename(temporary_.c_str(), target_.c_str()) != 0) return errno;
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

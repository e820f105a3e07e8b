#include "file_part.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <numeric>

namespace kavi::tool {

namespace {

// Where the `part`-th of `parts` ends, of so many bytes in all.
std::size_t end_of_part(std::size_t bytes, std::size_t part, std::size_t parts) {
    return bytes / parts * part + bytes % parts * part / parts;
}

}  // namespace

// The sizes of all files; standard input may be one.
std::string FileParts::measure() {
    for (const std::string& name : options_.files) {
        struct stat status = {};
        const int result =
            name == "-" ? ::fstat(STDIN_FILENO, &status) : ::stat(name.c_str(), &status);
        const bool is_file = result == 0 && S_ISREG(status.st_mode);
        if (result == 0 && !is_file) return "only a regular file has parts";
        sizes_.push_back(is_file ? static_cast<std::size_t>(status.st_size) : 0);
    }
    return {};
}

std::string FileParts::find(int file, std::size_t n, FilePart& part) {
    if (sizes_.empty()) {
        std::string wrong = measure();
        if (!wrong.empty()) return wrong;
    }
    const auto here = sizes_.begin() + static_cast<std::ptrdiff_t>(n);
    const std::size_t before = std::accumulate(sizes_.begin(), here, std::size_t{0});
    const std::size_t all = std::accumulate(here, sizes_.end(), before);
    const auto in_file = [&](std::size_t at) {
        return at > before ? std::min(at - before, *here) : 0;
    };
    part.begin = in_file(end_of_part(all, options_.part - 1, options_.parts));
    part.end = in_file(end_of_part(all, options_.part, options_.parts));
    part.first_text = part.begin;
    part.number = 1;
    if (part.begin == 0 || part.begin >= part.end) return {};

    // Texts before the part are counted; the first begins after a delimiter, which may be the last
    // byte before it.
    std::string buffer(std::size_t{1} << 18U, '\0');
    for (std::size_t at = 0;;) {
        const ssize_t got = ::pread(file, buffer.data(), buffer.size(), static_cast<off_t>(at));
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return std::strerror(errno);
        if (got == 0) {
            part.first_text = part.end;
            return {};
        }
        const char* const begin = buffer.data();
        const char* const end = begin + got;
        const char* from = begin;
        while (const auto* found = static_cast<const char*>(
                   std::memchr(from, options_.delimiter, static_cast<std::size_t>(end - from)))) {
            from = found + 1;
            ++part.number;
            part.first_text = at + static_cast<std::size_t>(from - begin);
            if (part.first_text >= part.begin) {
                const auto offset = static_cast<off_t>(part.first_text);
                return ::lseek(file, offset, SEEK_SET) < 0 ? std::strerror(errno) : "";
            }
        }
        at += static_cast<std::size_t>(got);
    }
}

}  // namespace kavi::tool

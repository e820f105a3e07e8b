#include "file_part.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <numeric>
#include <string_view>

namespace kavi::tool {

namespace {

// Where the `part`-th of `parts` parts of `bytes` bytes ends.
std::size_t end_of_part(std::size_t bytes, std::size_t part, std::size_t parts) {
    return bytes / parts * part + bytes % parts * part / parts;
}

off_t offset_of(int file) {
    return std::max<off_t>(::lseek(file, 0, SEEK_CUR), 0);
}

// Counts the texts that end in these bytes, which are at offset `at`, until the next one begins in
// the part. False when none does.
bool count_texts(std::string_view bytes, std::size_t at, char delimiter, FilePart& part) {
    for (std::size_t end = bytes.find(delimiter); end != std::string_view::npos;
         end = bytes.find(delimiter, end + 1)) {
        ++part.number;
        part.first_text = at + end + 1;
        if (part.first_text >= part.begin) return true;
    }
    return false;
}

}  // namespace

// The sizes of all files; standard input may be one.
std::string FileParts::measure() {
    bool has_standard_input = false;  // which has nothing more the second time
    for (const std::string& name : options_.files) {
        struct stat status = {};
        const int result =
            name == "-" ? ::fstat(STDIN_FILENO, &status) : ::stat(name.c_str(), &status);
        const bool is_file = result == 0 && S_ISREG(status.st_mode);
        if (result == 0 && !is_file) return "only a regular file has parts";
        off_t size = is_file ? status.st_size : 0;
        if (is_file && name == "-") {
            size = has_standard_input ? 0 : std::max<off_t>(size - offset_of(STDIN_FILENO), 0);
            has_standard_input = true;
        }
        sizes_.push_back(static_cast<std::size_t>(size));
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
        return std::min(std::max(at, before) - before, *here);
    };
    part.begin = in_file(end_of_part(all, options_.part - 1, options_.parts));
    part.end = in_file(end_of_part(all, options_.part, options_.parts));
    part.first_text = part.begin;
    part.number = 1;
    part.origin = file == STDIN_FILENO ? static_cast<std::size_t>(offset_of(file)) : 0;
    if (part.begin == 0 || part.begin >= part.end) return {};
    const int error = find_first_text(file, part);
    return error == 0 ? "" : std::strerror(error);
}

// Counts the texts before the part, and finds its first, which begins after a delimiter; that may
// be the last byte before the part. An error number, or 0.
int FileParts::find_first_text(int file, FilePart& part) const {
    std::string buffer(std::size_t{1} << 18U, '\0');
    for (std::size_t at = 0;;) {
        const ssize_t got =
            ::pread(file, buffer.data(), buffer.size(), static_cast<off_t>(part.origin + at));
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return errno;
        if (got == 0) {
            part.first_text = part.end;
            return 0;
        }
        const std::string_view bytes(buffer.data(), static_cast<std::size_t>(got));
        if (count_texts(bytes, at, options_.delimiter, part)) return 0;
        at += bytes.size();
    }
}

}  // namespace kavi::tool

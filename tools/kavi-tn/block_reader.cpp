#include "block_reader.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string_view>

#include "first_look.h"

namespace kavi::tool {

namespace {

constexpr std::size_t BLOCK_BYTES = std::size_t{256} * 1024;
constexpr std::size_t LONG_TEXT = std::size_t{1024} * 1024;  // not held in memory, from there on

// As std::count, but at the speed of a search, since one is far from the next.
std::size_t count(const std::string& bytes, char c) {
    std::size_t n = 0;
    for (std::size_t at = bytes.find(c); at != std::string::npos; at = bytes.find(c, at + 1)) ++n;
    return n;
}

}  // namespace

BlockReader::BlockReader(const Options& options)
    : options_(options), text_pending_(options.has_text), parts_(options) {}

BlockReader::~BlockReader() {
    close();
}

bool BlockReader::next(Block& block) {
    block = {};
    if (text_pending_) {
        text_pending_ = false;
        begin_input("TEXT");
        block.input = name_;
        block.number = input_number_;
        block.bytes = options_.text;
        return true;
    }
    const auto is_more_of_file = [this] { return file_ >= 0 || !carry_.empty(); };
    while (failure_.empty() && (is_more_of_file() || next_file_ < options_.files.size())) {
        if (!is_more_of_file()) open(options_.files[next_file_++]);
        if (is_more_of_file() && next_of_file(block)) return true;
    }
    if (failure_.empty()) return false;
    block.input = name_;
    block.number = input_number_;
    block.failure.swap(failure_);
    return true;
}

// The next block of the open file, up to its last delimiter; what is after that begins the block
// after it. At the end of the file closes it.
bool BlockReader::next_of_file(Block& block) {
    block.input = name_;
    block.number = input_number_;
    block.first = number_;
    block.bytes.swap(carry_);
    carry_.clear();
    for (std::size_t searched = 0; !cut_after_last_text(block.bytes, searched);) {
        searched = block.bytes.size();
        if (searched >= LONG_TEXT && begin_long_text(block)) return read_long_text(block);
        if (!read_more(block.bytes)) break;
        if (!is_new_) continue;
        if (!look(block)) return false;
        searched = 0;
    }
    is_new_ = false;
    number_ += count(block.bytes, options_.delimiter);
    return !block.bytes.empty();
}

// Looks at the first bytes of an input: a byte order mark is passed over. False, and the input is
// closed, when it is not to be read.
bool BlockReader::look(Block& block) {
    constexpr std::string_view BYTE_ORDER_MARK = "\xef\xbb\xbf";
    failure_ = other_than_text(block.bytes, options_.delimiter);
    if (!failure_.empty()) {
        block = {};
        close();
        return false;
    }
    const bool seems_binary = is_binary(block.bytes, options_.delimiter);
    block.notice = seems_binary ? "seems to be binary, not text" : "";
    is_new_ = block.bytes.size() < LONGEST_SIGNATURE;
    if (block.bytes.compare(0, BYTE_ORDER_MARK.size(), BYTE_ORDER_MARK) == 0) {
        block.bytes.erase(0, BYTE_ORDER_MARK.size());
    }
    return true;
}

// Leaves what is after the last delimiter for the next block. False when there is none from
// `searched` on.
bool BlockReader::cut_after_last_text(std::string& bytes, std::size_t searched) {
    const std::size_t last = std::string_view(bytes).substr(searched).rfind(options_.delimiter);
    if (last == std::string_view::npos) return false;
    const std::size_t end = searched + last + 1;
    carry_.assign(bytes, end);
    bytes.resize(end);
    return true;
}

// The block holds the beginning of one text: makes a long text of it. False where there are no
// temporary files: then it is held in memory.
bool BlockReader::begin_long_text(Block& block) {
    if (!has_temporary_files_) return false;
    block.long_text = std::make_unique<LongText>();
    has_temporary_files_ = block.long_text->append(block.bytes) == 0;
    if (has_temporary_files_) {
        std::string().swap(block.bytes);
    } else {
        block.long_text.reset();
    }
    return has_temporary_files_;
}

// Reads the rest of a long text. False when there is no room for it.
bool BlockReader::read_long_text(Block& block) {
    int error = 0;
    std::size_t end = std::string::npos;
    for (std::string more; error == 0 && end == std::string::npos && read_more(more);
         more.clear()) {
        end = more.find(options_.delimiter);
        error = block.long_text->append(std::string_view(more).substr(0, end));
        if (end != std::string::npos) carry_ = more.substr(end + 1);
    }
    if (error == 0) error = block.long_text->finish();
    if (end != std::string::npos) ++number_;
    if (error == 0) return true;
    block.long_text.reset();
    failure_ = std::string("a long text needs a temporary file: ") + std::strerror(error);
    carry_.clear();
    close();
    return false;
}

// Appends what there is in the open file, at least one byte. False at its end, where it is closed.
// What is carried when a part has been read ends with a delimiter: nothing is read after that.
bool BlockReader::read_more(std::string& bytes) {
    const std::size_t size = bytes.size();
    bytes.resize(size + BLOCK_BYTES);
    ssize_t n = 0;
    do {
        n = options_.parts == 1
                ? ::read(file_, &bytes[size], BLOCK_BYTES)
                : ::pread(file_, &bytes[size], BLOCK_BYTES, static_cast<off_t>(part_.origin + at_));
    } while (n < 0 && errno == EINTR);
    bytes.resize(size + static_cast<std::size_t>(n > 0 ? n : 0));
    if (n > 0 && options_.parts > 1) {
        const std::size_t kept = end_of_part(&bytes[size], static_cast<std::size_t>(n));
        at_ += kept;
        bytes.resize(size + kept);
        if (at_ >= part_.end && bytes.back() == options_.delimiter) close();
        return true;
    }
    if (n > 0) return true;
    if (n < 0) failure_ = std::strerror(errno);
    close();
    return false;
}

// Which of the `n` bytes of the file at `at_` still are of the part: all, or up to the first
// delimiter from its last byte on.
std::size_t BlockReader::end_of_part(const char* bytes, std::size_t n) const {
    const std::size_t last = part_.end - 1;
    if (at_ + n <= last) return n;
    const std::size_t from = std::max(last, at_) - at_;
    const auto* found =
        static_cast<const char*>(std::memchr(bytes + from, options_.delimiter, n - from));
    return found != nullptr ? static_cast<std::size_t>(found + 1 - bytes) : n;
}

void BlockReader::begin_part() {
    failure_ = parts_.find(file_, next_file_ - 1, part_);
    number_ = part_.number;
    at_ = part_.first_text;
    is_new_ = at_ == 0;
    std::string begin(FIRST_LOOK, '\0');  // of the file, also where another part has it
    const ssize_t n = ::pread(file_, begin.data(), begin.size(), static_cast<off_t>(part_.origin));
    if (n > 0 && failure_.empty()) {
        begin.resize(static_cast<std::size_t>(n));
        failure_ = other_than_text(begin, options_.delimiter);
    }
    if (!failure_.empty() || part_.first_text >= part_.end) close();
}

void BlockReader::begin_input(const std::string& name) {
    name_ = name;
    ++input_number_;
    number_ = 1;
    is_new_ = true;
}

void BlockReader::open(const std::string& name) {
    const bool is_standard_input = name == "-";
    begin_input(is_standard_input ? "standard input" : name);
    file_ = is_standard_input ? STDIN_FILENO : ::open(name.c_str(), O_RDONLY | O_CLOEXEC);
    if (file_ < 0) failure_ = std::strerror(errno);
    if (file_ >= 0 && options_.parts > 1) begin_part();
}

void BlockReader::close() {
    if (file_ > STDIN_FILENO) static_cast<void>(::close(file_));
    file_ = -1;
}

}  // namespace kavi::tool

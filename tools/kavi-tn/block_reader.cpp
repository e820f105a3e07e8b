#include "block_reader.h"

#include <cerrno>
#include <cstring>

namespace kavi::tool {

namespace {

constexpr std::size_t BLOCK_BYTES = std::size_t{256} * 1024;

// As std::count, but at the speed of a search, since one is far from the next.
std::size_t count(const std::string& bytes, char c) {
    std::size_t n = 0;
    for (std::size_t at = bytes.find(c); at != std::string::npos; at = bytes.find(c, at + 1)) ++n;
    return n;
}

}  // namespace

BlockReader::BlockReader(const Options& options)
    : options_(options), text_pending_(options.has_text) {}

BlockReader::~BlockReader() {
    close();
}

bool BlockReader::next(Block& block) {
    block = {};
    if (text_pending_) {
        text_pending_ = false;
        block.input = "TEXT";
        block.bytes = options_.text;
        return true;
    }
    while (file_ != nullptr || next_file_ < options_.files.size()) {
        if (file_ == nullptr) open(options_.files[next_file_++]);
        if (file_ != nullptr && next_of_file(block)) return true;
        if (failure_.empty()) continue;
        block.input = name_;
        block.failure.swap(failure_);
        return true;
    }
    return false;
}

// The next block of the open file, up to its last delimiter; what is after that begins the block
// after it. At the end of the file closes it.
bool BlockReader::next_of_file(Block& block) {
    block.input = name_;
    block.first = number_;
    block.bytes.swap(carry_);
    carry_.clear();
    for (;;) {
        const std::size_t searched = block.bytes.size();
        block.bytes.resize(searched + BLOCK_BYTES);
        const std::size_t n = std::fread(&block.bytes[searched], 1, BLOCK_BYTES, file_);
        block.bytes.resize(searched + n);
        if (n == 0) {
            if (std::ferror(file_) != 0) failure_ = std::strerror(errno);
            close();
            break;
        }
        const std::size_t last = block.bytes.rfind(options_.delimiter);
        if (last != std::string::npos && last >= searched) {
            carry_.assign(block.bytes, last + 1);
            block.bytes.resize(last + 1);
            break;
        }
    }
    number_ += count(block.bytes, options_.delimiter);
    return !block.bytes.empty();
}

void BlockReader::open(const std::string& name) {
    const bool is_standard_input = name == "-";
    name_ = is_standard_input ? "standard input" : name;
    number_ = 1;
    file_ = is_standard_input ? stdin : std::fopen(name.c_str(), "rb");
    if (file_ == nullptr) failure_ = std::strerror(errno);
}

void BlockReader::close() {
    if (file_ != nullptr && file_ != stdin) static_cast<void>(std::fclose(file_));
    file_ = nullptr;
}

}  // namespace kavi::tool

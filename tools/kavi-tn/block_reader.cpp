#include "block_reader.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace kavi::tool {

namespace {

constexpr std::size_t BLOCK_BYTES = std::size_t{64} * 1024;

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

// The next block of the open file; at its end closes it.
bool BlockReader::next_of_file(Block& block) {
    block.input = name_;
    block.first = number_;
    std::size_t searched = 0;
    for (;;) {
        const std::size_t last = carry_.rfind(options_.delimiter);
        if (last != std::string::npos && last >= searched) {
            block.bytes.assign(carry_, 0, last + 1);
            carry_.erase(0, last + 1);
            break;
        }
        searched = carry_.size();
        carry_.resize(searched + BLOCK_BYTES);
        const std::size_t n = std::fread(&carry_[searched], 1, BLOCK_BYTES, file_);
        carry_.resize(searched + n);
        if (n > 0) continue;
        if (std::ferror(file_) != 0) failure_ = std::strerror(errno);
        close();
        block.bytes.swap(carry_);
        carry_.clear();
        break;
    }
    number_ += static_cast<std::size_t>(
        std::count(block.bytes.begin(), block.bytes.end(), options_.delimiter));
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

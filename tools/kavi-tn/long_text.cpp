#include "long_text.h"

#include <sys/mman.h>

#include <cerrno>

namespace kavi::tool {

LongText::~LongText() {
    if (text_ != nullptr) static_cast<void>(::munmap(text_, size_));
}

int LongText::append(std::string_view bytes) {
    if (file_ == nullptr) file_.reset(std::tmpfile());
    if (file_ == nullptr) return errno;
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size()) return errno;
    size_ += bytes.size();
    return 0;
}

int LongText::finish() {
    if (std::fflush(file_.get()) != 0) return errno;
    void* text = ::mmap(nullptr, size_, PROT_READ, MAP_SHARED, ::fileno(file_.get()), 0);
    if (text == MAP_FAILED) return errno;
    text_ = static_cast<char*>(text);
    return 0;
}

// In steps of a megabyte: whole pages, and few calls of the system.
void LongText::forget(std::size_t size) {
    constexpr std::size_t STEP = std::size_t{1} << 20U;
    for (; size - forgotten_ >= STEP; forgotten_ += STEP) {
        static_cast<void>(::madvise(text_ + forgotten_, STEP, MADV_DONTNEED));
    }
}

}  // namespace kavi::tool

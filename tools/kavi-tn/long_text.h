// A text too long to be held in memory.
#ifndef KAVI_TOOL_LONG_TEXT_H
#define KAVI_TOOL_LONG_TEXT_H

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string_view>

namespace kavi::tool {

// A text in an unnamed temporary file that is mapped into memory. Operations return the system's
// error number, or 0.
class LongText {
  public:
    LongText() = default;
    ~LongText();
    LongText(const LongText&) = delete;
    LongText& operator=(const LongText&) = delete;

    int append(std::string_view bytes);

    // Maps the text, after the last append. Before that, text() may not be called.
    int finish();
    std::string_view text() const { return {text_, size_}; }

    // Releases the memory of the first `size` bytes, which are not needed any more.
    void forget(std::size_t size);

  private:
    struct Close {
        void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
    };

    std::unique_ptr<std::FILE, Close> file_;
    std::size_t size_ = 0;
    char* text_ = nullptr;
    std::size_t forgotten_ = 0;
};

}  // namespace kavi::tool

#endif  // KAVI_TOOL_LONG_TEXT_H

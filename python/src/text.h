// A str as bytes, and byte offsets as offsets in code points.
#ifndef KAVI_PYTHON_TEXT_H
#define KAVI_PYTHON_TEXT_H

#include <pybind11/pybind11.h>

#include <cstddef>
#include <string_view>

namespace kavi::python {

// The UTF-8 bytes of a str, which must outlive this. A lone surrogate, which UTF-8 does not have,
// is three bytes that are not spoken.
class Utf8 {
  public:
    explicit Utf8(const pybind11::str& text);
    std::string_view bytes() const { return bytes_; }
    bool is_ascii() const { return is_ascii_; }

  private:
    pybind11::object encoded_;  // the bytes, where Python does not keep them with the str
    std::string_view bytes_;
    bool is_ascii_;
};

// Converts byte offsets to offsets in code points. A conversion counts the characters since the
// last one, in either direction, so it is cheap for offsets near each other.
class CodePoints {
  public:
    // For bytes that begin at these offsets of a text.
    CodePoints(std::string_view bytes, bool is_ascii, std::size_t first_byte = 0,
               std::size_t first_point = 0)
        : bytes_(bytes), is_ascii_(is_ascii), first_byte_(first_byte), point_(first_point) {}
    std::size_t at(std::size_t byte);  // an offset in the text

  private:
    std::string_view bytes_;
    bool is_ascii_;
    std::size_t first_byte_;
    std::size_t byte_ = 0;  // the last one converted, relative to first_byte_
    std::size_t point_;     // and its result
};

}  // namespace kavi::python

#endif  // KAVI_PYTHON_TEXT_H

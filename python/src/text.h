// A str as bytes, and places in it as Python counts them.
#ifndef KAVI_PYTHON_TEXT_H
#define KAVI_PYTHON_TEXT_H

#include <pybind11/pybind11.h>

#include <cstddef>
#include <string_view>

namespace kavi::python {

// The UTF-8 bytes of a str, which lives at least as long. Lone surrogates, which have none, are
// three bytes that are not spoken.
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

// Offsets in code points for offsets in bytes; cheap for one after the other.
class CodePoints {
  public:
    // Of bytes that begin at this byte and this code point of a text.
    CodePoints(std::string_view bytes, bool is_ascii, std::size_t first_byte = 0,
               std::size_t first_point = 0)
        : bytes_(bytes), is_ascii_(is_ascii), first_byte_(first_byte), point_(first_point) {}
    std::size_t at(std::size_t byte);

  private:
    std::string_view bytes_;
    bool is_ascii_;
    std::size_t first_byte_;
    std::size_t byte_ = 0;  // the last that was asked for, in these bytes,
    std::size_t point_;     // and its code point
};

}  // namespace kavi::python

#endif  // KAVI_PYTHON_TEXT_H

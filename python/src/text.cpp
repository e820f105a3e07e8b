#include "text.h"

#include <algorithm>

namespace kavi::python {

namespace py = pybind11;

Utf8::Utf8(const py::str& text) : is_ascii_(PyUnicode_IS_ASCII(text.ptr()) != 0) {
    Py_ssize_t size = 0;
    if (const char* data = PyUnicode_AsUTF8AndSize(text.ptr(), &size)) {
        bytes_ = {data, static_cast<std::size_t>(size)};
        return;
    }
    PyErr_Clear();
    encoded_ = py::reinterpret_steal<py::object>(
        PyUnicode_AsEncodedString(text.ptr(), "utf-8", "surrogatepass"));
    if (!encoded_) throw py::error_already_set();
    bytes_ = {PyBytes_AS_STRING(encoded_.ptr()),
              static_cast<std::size_t>(PyBytes_GET_SIZE(encoded_.ptr()))};
}

std::size_t CodePoints::at(std::size_t byte) {
    if (is_ascii_) return byte;
    byte -= first_byte_;
    const auto begins = [](char c) { return (static_cast<unsigned char>(c) & 0xc0U) != 0x80; };
    const auto begin = bytes_.begin() + static_cast<std::ptrdiff_t>(std::min(byte, byte_));
    const auto end = bytes_.begin() + static_cast<std::ptrdiff_t>(std::max(byte, byte_));
    const auto n = static_cast<std::size_t>(std::count_if(begin, end, begins));
    point_ = byte < byte_ ? point_ - n : point_ + n;
    byte_ = byte;
    return point_;
}

}  // namespace kavi::python

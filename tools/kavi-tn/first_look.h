// Whether an input is text at all, by its first bytes.
#ifndef KAVI_TOOL_FIRST_LOOK_H
#define KAVI_TOOL_FIRST_LOOK_H

#include <cstddef>
#include <string>
#include <string_view>

namespace kavi::tool {

// How many bytes are looked at, and how many are enough for every signature.
constexpr std::size_t FIRST_LOOK = 4096;
constexpr std::size_t LONGEST_SIGNATURE = 10;

// For an input that is not read, since it is no UTF-8: what it is, and a command that converts it.
// Empty for any other. `bytes` are the first of the input.
std::string other_than_text(std::string_view bytes, char delimiter);

// Whether an input seems to be binary, by its share of control characters. It is read all the same.
bool is_binary(std::string_view bytes, char delimiter);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_FIRST_LOOK_H

// Whether an input is text at all, by its first bytes.
#ifndef KAVI_TOOL_FIRST_LOOK_H
#define KAVI_TOOL_FIRST_LOOK_H

#include <cstddef>
#include <string>
#include <string_view>

namespace kavi::tool {

// How many of them are looked at, and how few tell what is told by a signature.
constexpr std::size_t FIRST_LOOK = 4096;
constexpr std::size_t LONGEST_SIGNATURE = 10;

// What an input is instead of UTF-8, which is not read, and the line to type; empty for all others.
std::string other_than_text(std::string_view bytes, char delimiter);

// Whether it seems to be binary, by its share of control characters. It is read all the
// same.
bool is_binary(std::string_view bytes, char delimiter);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_FIRST_LOOK_H

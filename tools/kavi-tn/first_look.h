// Whether an input is text at all.
#ifndef KAVI_TOOL_FIRST_LOOK_H
#define KAVI_TOOL_FIRST_LOOK_H

#include <string>
#include <string_view>

#include "options.h"

namespace kavi::tool {

// What an input that begins with these bytes seems to be instead of text, and how to read it; empty
// for text. It is read all the same.
std::string first_look(std::string_view bytes, const Options& options);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_FIRST_LOOK_H

// The arguments of the command line.
#ifndef KAVI_TOOL_COMMAND_LINE_H
#define KAVI_TOOL_COMMAND_LINE_H

#include <optional>

#include "options.h"

namespace kavi::tool {

// What the arguments ask for. Nothing when the program is to end with `status`: help or the version
// is written then, or what is wrong.
std::optional<Options> parse_command_line(int argc, char** argv, int& status);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_COMMAND_LINE_H

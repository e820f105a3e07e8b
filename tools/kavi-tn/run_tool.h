// The command line kavi-tn, from its arguments to its exit status.
#ifndef KAVI_TOOL_RUN_TOOL_H
#define KAVI_TOOL_RUN_TOOL_H

namespace kavi::tool {

// Once in a process: some ends, such as an interrupt, end the process.
int run_tool(int argc, char** argv);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_RUN_TOOL_H

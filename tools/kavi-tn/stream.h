// Standard input as one text that is still being written.
#ifndef KAVI_TOOL_STREAM_H
#define KAVI_TOOL_STREAM_H

#include "options.h"

namespace kavi::tool {

// Reads what comes as soon as it comes, and writes each clause as soon as nothing that may follow
// can change it. The exit status.
int run_stream(const Options& options);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_STREAM_H

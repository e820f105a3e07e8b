// From the inputs to the output, with as many threads as asked for.
#ifndef KAVI_TOOL_PIPELINE_H
#define KAVI_TOOL_PIPELINE_H

#include "options.h"

namespace kavi::tool {

// Reads, renders and writes everything; the output is in input order and the same for every number
// of threads. The exit status: 0, or 1 when something could not be read, normalised or written, or
// when there is a finding and the options say that there must be none. The signals of interrupt.h
// end the process by themselves between two lines of output, or within a line when that is not
// taken; an output file is then as it was, as it is after a failure. When nobody reads the output
// any more, SIGPIPE does.
int run_pipeline(const Options& options);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_PIPELINE_H

// Texts beside the words that are expected of them.
#ifndef KAVI_TOOL_CHECK_H
#define KAVI_TOOL_CHECK_H

#include "options.h"

namespace kavi::tool {

// Reads lines "text<TAB>words", with more tabs before other words that will do; "#" begins a
// remark. What --plain writes of the text is compared with them: words without regard to case,
// marks only where they are expected. Writes where others are spoken, the words one under the
// other, and how many are as expected; on standard error, which lines have no tab. The exit status:
// 0 when all are as expected and all could be read.
int run_check(const Options& options);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_CHECK_H

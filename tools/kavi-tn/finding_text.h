// A finding as people read it.
#ifndef KAVI_TOOL_FINDING_TEXT_H
#define KAVI_TOOL_FINDING_TEXT_H

#include <string>
#include <string_view>

#include "tts_findings.h"

namespace kavi::tool {

// The message of tts_findings.h; of what has no words, with these characters: its `bytes` in the
// text.
std::string describe(const Diagnostic& diagnostic, std::string_view bytes);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_FINDING_TEXT_H

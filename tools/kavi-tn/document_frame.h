// What a document has around its sentences.
#ifndef KAVI_TOOL_DOCUMENT_FRAME_H
#define KAVI_TOOL_DOCUMENT_FRAME_H

#include <string_view>

#include "options.h"

namespace kavi::tool {

struct DocumentFrame {
    std::string_view begin;
    std::string_view end;
};

// Of a page and of an SSML document; empty for the formats of which each line is whole by itself.
DocumentFrame document_frame(FormatName format);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_DOCUMENT_FRAME_H

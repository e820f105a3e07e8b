#include "document_frame.h"

#include "page_text.h"
#include "tts_ssml.h"

namespace kavi::tool {

DocumentFrame document_frame(FormatName format) {
    switch (format) {
        case FormatName::html: return {PAGE_BEGIN, PAGE_END};
        case FormatName::ssml: return {SSML_BEGIN, SSML_END};
        case FormatName::text:
        case FormatName::jsonl: break;
    }
    return {};
}

}  // namespace kavi::tool

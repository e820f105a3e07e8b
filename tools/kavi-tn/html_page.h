// Names on the page: of marks and of sentences.
#ifndef KAVI_TOOL_HTML_PAGE_H
#define KAVI_TOOL_HTML_PAGE_H

#include <string>
#include <string_view>
#include <utility>

#include "format.h"

namespace kavi::tool {

// Marks that punctuation writes with one or two characters.
inline constexpr std::pair<std::string_view, std::string_view> MARK_GLYPHS[] = {
    {"dun", ","},    {"dou", ","},   {"fen", ";"},       {"ju", "."},      {"wen", "?"},
    {"tan", "!"},    {"mao", ":"},   {"zuoyin", "\""},   {"youyin", "\""}, {"zuokuo", "("},
    {"youkuo", ")"}, {"pozhe", "-"}, {"shenglue", "..."}};

// The id of a sentence's element.
inline std::string anchor(const Location& location) {
    return std::to_string(location.input_number) + "." + std::to_string(location.line) + "." +
           std::to_string(location.sentence);
}

}  // namespace kavi::tool

#endif  // KAVI_TOOL_HTML_PAGE_H

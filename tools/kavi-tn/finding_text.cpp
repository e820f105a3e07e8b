#include "finding_text.h"

#include <utf8.h>

#include <iterator>
#include <set>

namespace kavi::tool {

namespace {

// As in "é" U+00E9.
void append_character(char32_t c, std::string& list) {
    constexpr const char* DIGITS = "0123456789ABCDEF";
    list += '"';
    utf8::append(c, std::back_inserter(list));
    list += "\" U+";
    for (unsigned bits = c > 0xfffff ? 24 : c > 0xffff ? 20 : 16; bits > 0; bits -= 4) {
        list += DIGITS[c >> (bits - 4) & 0xfU];
    }
}

}  // namespace

std::string describe(const Diagnostic& diagnostic, std::string_view bytes) {
    if (diagnostic.finding == Finding::mark_not_spoken) {
        return '"' + std::string(bytes) + "\": " + kavi::describe(diagnostic.finding);
    }
    if (diagnostic.finding != Finding::not_spoken) return kavi::describe(diagnostic.finding);
    if (!utf8::is_valid(bytes.begin(), bytes.end())) {
        return bytes.size() == 1
                   ? "a byte that is not UTF-8 is not spoken"
                   : std::to_string(bytes.size()) + " bytes, not all of them UTF-8, are not spoken";
    }
    std::set<char32_t> characters;
    for (const auto* at = bytes.begin(); at != bytes.end();) {
        characters.insert(utf8::next(at, bytes.end()));
    }
    std::string list;
    for (const char32_t c : characters) {
        if (!list.empty()) list += ", ";
        append_character(c, list);
    }
    return list + (characters.size() == 1 ? " is not spoken" : " are not spoken");
}

}  // namespace kavi::tool

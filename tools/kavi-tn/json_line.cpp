#include "json_line.h"

#include <algorithm>

#include "names.h"

namespace kavi::tool {

namespace {

bool is_special(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '"' || c == '\\';
}

void append_special(char c, TextBuffer& out) {
    constexpr const char* DIGITS = "0123456789ABCDEF";
    switch (c) {
        case '\b': out << "\\b"; break;
        case '\f': out << "\\f"; break;
        case '\n': out << "\\n"; break;
        case '\r': out << "\\r"; break;
        case '\t': out << "\\t"; break;
        case '"':
        case '\\': out.add('\\', c); break;
        default: out.add("\\u00", DIGITS[c / 16], DIGITS[c % 16]);
    }
}

}  // namespace

std::string_view JsonLine::escape(std::string_view text, TextBuffer& out) {
    const std::string valid = is_ascii(text) ? std::string() : valid_utf8(text);
    if (!valid.empty()) text = valid;
    out.clear();
    while (!text.empty()) {
        const auto* const special = std::find_if(text.begin(), text.end(), is_special);
        const auto size = static_cast<std::size_t>(special - text.begin());
        out << text.substr(0, size);
        if (special != text.end()) append_special(*special, out);
        text.remove_prefix(std::min(size + 1, text.size()));
    }
    return out.text();
}

}  // namespace kavi::tool

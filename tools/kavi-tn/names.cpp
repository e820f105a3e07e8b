#include "names.h"

#include <utf8.h>

#include <iterator>

namespace kavi::tool {

namespace {

struct FieldRow {
    Field field;
    std::string_view name;
};

constexpr FieldRow FIELDS[] = {
    {Field::input, "input"},
    {Field::line, "line"},
    {Field::sentence, "sentence"},
    {Field::offset, "offset"},
    {Field::length, "length"},
    {Field::source, "source"},
    {Field::normalized, "normalized"},
    {Field::speakable, "speakable"},
    {Field::plain, "plain"},
    {Field::before, "before"},
    {Field::words, "words"},
    {Field::findings, "findings"},
    {Field::runs, "runs"},
    {Field::version, "version"},
};

// The rows are indexed by field.
constexpr bool are_in_order() {
    int index = 0;
    for (const FieldRow& row : FIELDS) {
        if (static_cast<int>(row.field) != index++) return false;
    }
    return index == static_cast<int>(Field::version) + 1;
}
static_assert(are_in_order());

// Unicode's Cc but for line ends and tabs, Bidi_Control, and the separators of lines and
// paragraphs.
bool is_hidden(char32_t c) {
    if (c == '\n' || c == '\t') return false;
    const bool is_control = c < ' ' || (c >= 0x7f && c <= 0x9f);
    const bool turns = c == 0x61c || c == 0x200e || c == 0x200f || (c >= 0x202a && c <= 0x202e) ||
                       (c >= 0x2066 && c <= 0x2069);
    return is_control || turns || c == 0x2028 || c == 0x2029;
}

// Appends an escape such as \x1b of a byte, or \u202e of a character.
void append_escape(char32_t c, bool is_byte, std::string& out) {
    constexpr const char* DIGITS = "0123456789abcdef";
    out += is_byte ? "\\x" : "\\u";
    for (unsigned bits = is_byte ? 8 : 16; bits > 0; bits -= 4) {
        out += DIGITS[c >> (bits - 4) & 0xfU];
    }
}

}  // namespace

std::string_view name_of(Field field) {
    return FIELDS[static_cast<int>(field)].name;
}

std::optional<Field> field_of(std::string_view name) {
    for (const FieldRow& row : FIELDS) {
        if (row.name == name) return row.field;
    }
    return {};
}

void append_punctuation(const UtteranceSyllable& record, TextBuffer& out) {
    for (int i = 0; i < record.n_punc; ++i) {
        if (i > 0) out << ' ';
        out << punctuation_name(record.punc_arr[i]);
    }
}

void append_attributes(const CssmlTag& tag, TextBuffer& out) {
    if (!has_attributes(tag)) return;
    const char* blank = "";
    for (const auto& [name, value] : attributes(tag)) {
        if (*value == '\0') continue;
        out << blank << name << '=' << value;
        blank = " ";
    }
}

std::string visible(std::string_view text) {
    std::string result;
    const char* const end = text.data() + text.size();
    for (const char* at = text.data(); at != end;) {
        for (const char* const invalid = utf8::find_invalid(at, end); at != invalid;) {
            const char* const begin = at;
            const char32_t c = utf8::unchecked::next(at);
            if (is_hidden(c)) {
                append_escape(c, c < 0x80, result);
            } else {
                result.append(begin, static_cast<std::size_t>(at - begin));
            }
        }
        if (at != end) append_escape(static_cast<unsigned char>(*at++), true, result);
    }
    return result;
}

std::string in_quotes(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '"' || c == '\\') result += '\\';
        c == '\n' ? result += "\\n" : c == '\t' ? result += "\\t" : result += c;
    }
    return '"' + visible(result) + '"';
}

std::string shown(std::string_view name) {
    const bool is_plain = !name.empty() && name.front() != ' ' && name.back() != ' ' &&
                          name.find_first_of("\n\t") == std::string_view::npos &&
                          visible(name) == name;
    return is_plain ? std::string(name) : in_quotes(name);
}

std::string valid_utf8(std::string_view text) {
    std::string valid;
    utf8::replace_invalid(text.begin(), text.end(), std::back_inserter(valid));
    return valid;
}

}  // namespace kavi::tool

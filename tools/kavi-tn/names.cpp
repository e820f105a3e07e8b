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
};

// A field is found by its place.
constexpr bool are_in_order() {
    int place = 0;
    for (const FieldRow& row : FIELDS) {
        if (static_cast<int>(row.field) != place++) return false;
    }
    return place == static_cast<int>(Field::runs) + 1;
}
static_assert(are_in_order());

bool is_control(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
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

std::string in_quotes(std::string_view text) {
    constexpr const char* DIGITS = "0123456789abcdef";
    std::string result = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool is_escaped =
            is_control(c) || (byte > 127 && !utf8::is_valid(text.begin(), text.end()));
        if (c == '\n') {
            result += "\\n";
        } else if (is_escaped) {
            result.append("\\x").append(1, DIGITS[byte / 16]).append(1, DIGITS[byte % 16]);
        } else {
            if (c == '"' || c == '\\') result += '\\';
            result += c;
        }
    }
    return result + "\"";
}

std::string shown(std::string_view name) {
    bool is_plain = !name.empty() && name.front() != ' ' && name.back() != ' ' &&
                    utf8::is_valid(name.begin(), name.end());
    for (const char c : name) is_plain = is_plain && !is_control(c);
    return is_plain ? std::string(name) : in_quotes(name);
}

std::string valid_utf8(std::string_view text) {
    std::string valid;
    utf8::replace_invalid(text.begin(), text.end(), std::back_inserter(valid));
    return valid;
}

}  // namespace kavi::tool

// The names of fields, lists of what a record holds, and names and values of the user's for
// messages.
#ifndef KAVI_TOOL_NAMES_H
#define KAVI_TOOL_NAMES_H

#include <optional>
#include <string>
#include <string_view>

#include "ShareObj.h"
#include "options.h"
#include "tts_names.h"
#include "tts_text_buffer.h"

namespace kavi::tool {

std::string_view name_of(Field field);
std::optional<Field> field_of(std::string_view name);

// Appends the punctuation names of a record, or its attributes that are set, separated by blanks.
void append_punctuation(const UtteranceSyllable& record, TextBuffer& out);
void append_attributes(const CssmlTag& tag, TextBuffer& out);

// Whether there is something to tell about the head record.
inline bool has_marks(const UtteranceSyllable& record) {
    return record.n_punc > 0 || record.cssml_tag.breaktime[0] != '\0';
}

// The same text with escapes, such as \x1b or \u202e, for what a terminal obeys or nobody sees:
// control characters but for line ends and tabs, characters that turn the direction of writing, and
// bytes that are no UTF-8.
std::string visible(std::string_view text);

// A name or a value of the user's for a message, visible and in quotation marks, so that it cannot
// pass for another line.
std::string in_quotes(std::string_view text);
std::string shown(
    std::string_view name);  // quoted only where it must be: or with blanks at its ends

inline bool is_ascii(std::string_view text) {
    unsigned char bits = 0;
    for (const char c : text) bits |= static_cast<unsigned char>(c);
    return bits <= 0x7f;
}

// The same text with U+FFFD for what is not UTF-8.
std::string valid_utf8(std::string_view text);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_NAMES_H

// Names of fields, lists of what a record holds, and texts of the user made safe for messages.
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

// Appends the names of a record's punctuation, or the attributes that are set, as NAME=VALUE, with
// blanks between them.
void append_punctuation(const UtteranceSyllable& record, TextBuffer& out);
void append_attributes(const CssmlTag& tag, TextBuffer& out);

// Whether a record has marks or a break. The head record is written only when it has.
inline bool has_marks(const UtteranceSyllable& record) {
    return record.n_punc > 0 || record.cssml_tag.breaktime[0] != '\0';
}

// The text with escapes, such as \x1b or \u202e, for control characters except line ends and tabs,
// for characters that change the direction of writing, and for bytes that are not UTF-8.
std::string visible(std::string_view text);

// The text made visible, in quotation marks and on one line, for a message.
std::string in_quotes(std::string_view text);

// The same, but without quotation marks where a name is clear without them.
std::string shown(std::string_view name);

inline bool is_ascii(std::string_view text) {
    unsigned char bits = 0;
    for (const char c : text) bits |= static_cast<unsigned char>(c);
    return bits <= 0x7f;
}

// The same text with U+FFFD for what is not UTF-8.
std::string valid_utf8(std::string_view text);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_NAMES_H

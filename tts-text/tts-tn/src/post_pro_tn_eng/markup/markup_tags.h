// The markup tags of raw text and of sentences, by their prefixes.
#ifndef KAVI_TN_MARKUP_TAGS_H
#define KAVI_TN_MARKUP_TAGS_H

#include <string_view>

#include "../common/ascii.h"

namespace kavi::tn {

enum class TagKind {
    removed,     // not in a sentence
    kept,        // copied
    span_open,   // opens a span; one that is open at the end of a sentence goes on in the next
    span_close,  // closes the innermost span
};

struct MarkupTag {
    std::string_view prefix;  // of a span_close, the whole tag
    TagKind kind;
    const char* partner;  // the closing tag of a span_open; the prefix that a span_close closes
};

// Searched in this order: the first prefix that matches wins.
extern const MarkupTag MARKUP_TAGS[13];

// Whether `text`, NUL-terminated or a string_view, begins with `prefix`.
inline bool begins_with(const char* text, std::string_view prefix) {
    for (const char c : prefix) {
        if (*text++ != c) return false;
    }
    return true;
}
inline bool begins_with(std::string_view text, std::string_view prefix) {
    return text.substr(0, prefix.size()) == prefix;
}

// The letters after "<" in MARKUP_TAGS: bit 0 for "a", bit 25 for "z".
extern const unsigned MARKUP_INITIALS;

// A quick test: false when none of the tags begins at `text`.
inline bool may_begin_tag(const char* text) {
    return text[0] == '<' && (text[1] == '/' || (is_lower(text[1]) &&
                                                 (MARKUP_INITIALS >> (text[1] - 'a') & 1U) != 0));
}
inline bool may_begin_tag(std::string_view text) {
    return text.size() > 1 && may_begin_tag(text.data());
}

// The row of the first prefix that `text` begins with, or null. Whether a ">" ends the tag is not
// tested.
template <typename Text>
const MarkupTag* find_markup_tag(Text text) {
    if (!may_begin_tag(text)) return nullptr;
    for (const MarkupTag& tag : MARKUP_TAGS) {
        if (text[1] == tag.prefix[1] && begins_with(text, tag.prefix)) return &tag;
    }
    return nullptr;
}

// Whether `text` begins with the prefix of a tag that a sentence may contain. "<punc=english>" is
// such a tag, by its prefix "<punc=": it is removed from raw text only.
bool begins_sentence_tag(const char* text);

}  // namespace kavi::tn

#endif  // KAVI_TN_MARKUP_TAGS_H

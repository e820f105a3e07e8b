// The markup tags of raw and normalised text.
#ifndef KAVI_TN_MARKUP_TAGS_H
#define KAVI_TN_MARKUP_TAGS_H

#include <string_view>

#include "../common/ascii.h"

namespace kavi::tn {

enum class TagKind {
    removed,     // never reaches a sentence
    kept,        // copied as it is
    span_open,   // opens a span: saved, closed at the end of the sentence, opened again after it
    span_close,  // closes the innermost span
};

struct MarkupTag {
    std::string_view prefix;  // what the tag begins with
    TagKind kind;
    const char* partner;  // of an opening: its closing tag; of a closing: what it closes
};

// Searched in this order; the first prefix that a text begins with wins.
extern const MarkupTag MARKUP_TAGS[13];

// Whether a NUL-terminated text, or a piece of one, begins with `prefix`.
inline bool begins_with(const char* text, std::string_view prefix) {
    for (const char c : prefix) {
        if (*text++ != c) return false;  // most texts by their first character
    }
    return true;
}
inline bool begins_with(std::string_view text, std::string_view prefix) {
    return text.substr(0, prefix.size()) == prefix;
}

// Letters that come after the "<" of any of them: a bit for each, from "a" on.
extern const unsigned MARKUP_INITIALS;

// Whether a text may begin with one of the tags: no other "<" need be compared with all of them.
inline bool may_begin_tag(const char* text) {
    return text[0] == '<' && (text[1] == '/' || (is_lower(text[1]) &&
                                                 (MARKUP_INITIALS >> (text[1] - 'a') & 1U) != 0));
}
inline bool may_begin_tag(std::string_view text) {
    return text.size() > 1 && may_begin_tag(text.data());
}

// The row of the tag that `text` begins with, or null.
template <typename Text>
const MarkupTag* find_markup_tag(Text text) {
    if (!may_begin_tag(text)) return nullptr;
    for (const MarkupTag& tag : MARKUP_TAGS) {
        if (text[1] == tag.prefix[1] && begins_with(text, tag.prefix)) return &tag;
    }
    return nullptr;
}

// Whether `text` begins with a tag of sentences. "<punc=english>" is one: a removed tag that comes
// to a sentence by another way is an ordinary punctuation tag.
bool begins_sentence_tag(const char* text);

}  // namespace kavi::tn

#endif  // KAVI_TN_MARKUP_TAGS_H

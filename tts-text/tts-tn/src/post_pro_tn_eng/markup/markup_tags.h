// The markup tags of raw and normalised text.
#ifndef KAVI_TN_MARKUP_TAGS_H
#define KAVI_TN_MARKUP_TAGS_H

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string_view>

#include "PostProcTN.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

enum class TagKind {
    removed,     // never reaches a sentence
    kept,        // copied as it stands
    span_open,   // opens a span: saved, closed at the end of the sentence, opened again after it
    span_close,  // closes the innermost span
};

struct MarkupTag {
    std::string_view prefix;  // what the tag begins with
    TagKind kind;
    std::string_view partner;  // of an opening: its closing tag; of a closing: what it closes
};

// Searched in this order; the first prefix that the text begins with wins.
// clang-format off
inline constexpr MarkupTag MARKUP_TAGS[] = {
    {"<pause=",         TagKind::removed,    ""},
    {"<orgLen=",        TagKind::removed,    ""},
    {"<punc=english>",  TagKind::removed,    ""},
    {"<punc=",          TagKind::kept,       ""},
    {"<breaktime=",     TagKind::kept,       ""},
    {"<emphasis=",      TagKind::span_open,  "</emphasis>"},
    {"<quill_effect=",  TagKind::span_open,  "</quill_effect>"},
    {"<prosody=",       TagKind::span_open,  "</prosody>"},
    {"<poem=",          TagKind::span_open,  "</poem>"},
    {"</emphasis>",     TagKind::span_close, "<emphasis="},
    {"</quill_effect>", TagKind::span_close, "<quill_effect="},
    {"</prosody>",      TagKind::span_close, "<prosody="},
    {"</poem>",         TagKind::span_close, "<poem="},
};
// clang-format on

constexpr std::size_t MARKUP_TAG_MAX = WORD_MAX_LEN - 1;  // no section holds a longer tag
constexpr std::size_t SAVED_TAG_MAX = sizeof SsmlTagArr::begin_tag_arr[0] - 1;
constexpr int OPEN_TAGS_MAX =
    static_cast<int>(sizeof SsmlTagArr::begin_tag_arr / sizeof SsmlTagArr::begin_tag_arr[0]);

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

// The row of the tag that `text` begins with, or null.
template <typename Text>
const MarkupTag* find_markup_tag(Text text) {
    for (const MarkupTag& tag : MARKUP_TAGS) {
        if (begins_with(text, tag.prefix)) return &tag;
    }
    return nullptr;
}

// Whether `text` begins with a tag of sentences. "<punc=english>" is one: a removed tag that comes
// to a sentence by another way is an ordinary punctuation tag.
inline bool begins_sentence_tag(const char* text) {
    return std::any_of(std::begin(MARKUP_TAGS), std::end(MARKUP_TAGS), [=](const MarkupTag& tag) {
        return tag.kind != TagKind::removed && begins_with(text, tag.prefix);
    });
}

}  // namespace kavi::tn

#endif  // KAVI_TN_MARKUP_TAGS_H

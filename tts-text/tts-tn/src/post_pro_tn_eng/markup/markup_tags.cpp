// The table of markup tags.

#include "markup_tags.h"

namespace kavi::tn {

// clang-format off
constexpr MarkupTag MARKUP_TAGS[13] = {
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

namespace {

constexpr unsigned make_initials() {
    unsigned initials = 0;
    for (const MarkupTag& tag : MARKUP_TAGS) {
        if (is_lower(tag.prefix[1])) initials |= 1U << (tag.prefix[1] - 'a');
    }
    return initials;
}

}  // namespace

constexpr unsigned MARKUP_INITIALS = make_initials();

bool begins_sentence_tag(const char* text) {
    if (!may_begin_tag(text)) return false;
    for (const MarkupTag& tag : MARKUP_TAGS) {
        if (tag.kind != TagKind::removed && text[1] == tag.prefix[1] &&
            begins_with(text, tag.prefix)) {
            return true;
        }
    }
    return false;
}

}  // namespace kavi::tn

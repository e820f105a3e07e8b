// The tag language of speakable text: names, roles and how far each tag reaches.
#ifndef KAVI_TN_TAG_LANGUAGE_H
#define KAVI_TN_TAG_LANGUAGE_H

#include <string_view>

#include "../common/limits.h"
#include "paired_tags.h"
#include "post_pro_tn_eng.h"
#include "tag_ends.h"

namespace kavi::tn {

enum class TagRole : unsigned char {
    simple,   // ends at its ">"
    dropped,  // paired; dropped with its content
    span,     // paired; its content is read
};

// What the builder does at a tag.
enum class TagUse : unsigned char { none, punc, breaktime, span };

// A tag in a text. The string_views are parts of the text.
struct Tag {
    TagRole role;
    TagUse use;
    std::string_view name;
    std::string_view value;
    std::string_view content;  // between a paired tag and its closing tag
    const char* after;         // the position after the tag and its content
};

// Whether the name of a tag begins at `name`. More letters may follow the name.
bool begins_tag_name(const char* name);

// Reads the tag whose name begins at `name`, through its ">", with no content. False when no name
// of the language begins there, the name is more than TAG_NAME_MAX characters, or no ">" comes
// before `end`.
bool read_opening(const char* name, const char* end, TagEnds& tag_ends, Tag& tag);

// Reads the content of a paired tag and its closing tag; nothing of a simple one. False when it is
// not closed before `end`: the content of a span is then all up to `end`, that of another tag is
// empty, so that the words after the tag stay.
bool read_content(Tag& tag, const char* end, PairedTags& paired_tags);

}  // namespace kavi::tn

#endif  // KAVI_TN_TAG_LANGUAGE_H

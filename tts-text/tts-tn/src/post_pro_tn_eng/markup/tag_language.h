// The tags of speakable text, by their names.
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
    dropped,  // paired; goes with its content
    span,     // paired; its content is read
};

// What the builder does at a tag.
enum class TagUse : unsigned char { none, punc, breaktime, span };

// A tag, as it is written in the text.
struct Tag {
    TagRole role;
    TagUse use;
    std::string_view name;
    std::string_view value;
    std::string_view content;  // between a paired tag and its closing tag
    const char* after;         // where the text goes on
};

// Whether the name of a tag of the language begins at `name`.
bool begins_tag_name(const char* name);

// Reads the tag whose name begins at `name`, as far as its ">". False when it is none of the
// language or has no ">" before `end`.
bool read_opening(const char* name, const char* end, TagEnds& tag_ends, Tag& tag);

// Reads on to the end of a paired tag. One that is not closed before `end`: a span runs as far as
// that; any other is passed over by itself, so that the words after it stay. False for these.
bool read_content(Tag& tag, const char* end, PairedTags& paired_tags);

}  // namespace kavi::tn

#endif  // KAVI_TN_TAG_LANGUAGE_H

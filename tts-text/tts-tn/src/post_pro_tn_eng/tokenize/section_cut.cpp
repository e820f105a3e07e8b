#include "section_cut.h"

#include "../markup/markup_tags.h"

namespace kavi::tn {

std::string_view first_tag(const char* text, TagEnds& tag_ends) {
    if (begins_sentence_tag(text)) {
        const std::string_view tag = tag_ends.tag_at(text);
        if (!tag.empty() && tag.size() <= WORD_LENGTH_MAX) return tag;
    }
    return {text, 1};
}

}  // namespace kavi::tn

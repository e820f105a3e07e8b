// The table of tag names, and reading one tag.

#include "tag_language.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstring>
#include <iterator>

#include "../common/ascii.h"

namespace kavi::tn {

namespace {

// Grouped by first letter. The first row whose prefix a name begins with gives its role. The use is
// that of the row only if the name is the whole prefix.
struct TagName {
    char prefix[13];
    TagRole role;
    TagUse use;
};

// clang-format off
constexpr TagName TAG_NAMES[] = {
    {"breaktime",    TagRole::simple,  TagUse::breaktime},
    {"emphasis",     TagRole::span,    TagUse::span},
    {"letter",       TagRole::dropped, TagUse::none},
    {"orgLen",       TagRole::simple,  TagUse::none},
    {"punc",         TagRole::simple,  TagUse::punc},
    {"prosody",      TagRole::span,    TagUse::span},
    {"poem",         TagRole::span,    TagUse::span},
    {"pause",        TagRole::simple,  TagUse::none},
    {"py",           TagRole::dropped, TagUse::none},
    {"quill_effect", TagRole::span,    TagUse::span},
    {"sil",          TagRole::simple,  TagUse::none},
    {"silratio",     TagRole::simple,  TagUse::none},
};
// clang-format on

constexpr std::size_t ROWS = std::size(TAG_NAMES);

// For each letter, the index of the first row that begins with it, or ROWS.
constexpr auto make_first_rows() {
    std::array<unsigned char, 26> rows{};
    for (unsigned char& row : rows) row = ROWS;
    for (std::size_t n = ROWS; n-- > 0;) {
        rows[static_cast<std::size_t>(TAG_NAMES[n].prefix[0] - 'a')] =
            static_cast<unsigned char>(n);
    }
    return rows;
}

constexpr auto FIRST_ROWS = make_first_rows();

// The first row whose prefix begins at `name`, and the length of that prefix. Null when there is
// none.
const TagName* find_name(const char* name, std::size_t& length) {
    if (!is_lower(*name)) return nullptr;
    for (std::size_t n = FIRST_ROWS[static_cast<std::size_t>(*name - 'a')];
         n < ROWS && TAG_NAMES[n].prefix[0] == *name; ++n) {
        const char* prefix = TAG_NAMES[n].prefix;
        length = 1;
        while (prefix[length] != '\0' && name[length] == prefix[length]) ++length;
        if (prefix[length] == '\0') return &TAG_NAMES[n];
    }
    return nullptr;
}

}  // namespace

bool begins_tag_name(const char* name) {
    std::size_t length = 0;
    return find_name(name, length) != nullptr;
}

bool read_opening(const char* name, const char* end, TagEnds& tag_ends, Tag& tag) {
    std::size_t prefix_length = 0;
    const TagName* kind = find_name(name, prefix_length);
    if (kind == nullptr) return false;
    const std::string_view text = tag_ends.tag_at(name);
    if (text.empty() || text.data() + text.size() > end) return false;
    const std::string_view inside = text.substr(0, text.size() - 1);
    const std::size_t name_length = std::min(inside.find('='), inside.size());
    if (name_length > TAG_NAME_MAX) return false;
    tag.role = kind->role;
    tag.use = name_length == prefix_length ? kind->use : TagUse::none;
    tag.name = inside.substr(0, name_length);
    tag.value = inside.substr(std::min(name_length + 1, inside.size()));
    tag.content = {};
    tag.after = text.data() + text.size();
    return true;
}

bool read_content(Tag& tag, const char* end, PairedTags& paired_tags) {
    if (tag.role == TagRole::simple) return true;
    const char* content = tag.after;
    const char* pc_temp = paired_tags.find_closing(content, end, tag.name);
    const bool closed = pc_temp != nullptr;
    if (!closed) pc_temp = tag.use == TagUse::span ? end : content;
    assert(pc_temp != NULL);
    tag.content = {content, static_cast<std::size_t>(pc_temp - content)};
    tag.after = pc_temp + (closed ? tag.name.size() + std::strlen("</>") : 0);
    return closed;
}

}  // namespace kavi::tn

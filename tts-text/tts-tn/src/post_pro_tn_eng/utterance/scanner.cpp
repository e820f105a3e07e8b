// Scanning tagged text: which tags there are, and how far each reaches.

#include "scanner.h"

#include <algorithm>
#include <cassert>
#include <cstring>

#include "../markup/markup_tags.h"
#include "TtsString.h"

namespace kavi {

namespace tn {

namespace {

constexpr std::size_t TAG_NAME_MAX = MEMORY_SIZE_TAG_LABEL_TN - 1;

// A name belongs to the first row that it begins with. Only the exact name has the use.
struct TagName {
    std::string_view prefix;
    TagRole role;
    TagUse use;
};

// clang-format off
constexpr TagName TAG_NAMES[] = {
    {"punc",         TagRole::simple,  TagUse::punc},
    {"orgLen",       TagRole::simple,  TagUse::none},
    {"sil",          TagRole::simple,  TagUse::none},
    {"silratio",     TagRole::simple,  TagUse::none},
    {"pause",        TagRole::simple,  TagUse::none},
    {"breaktime",    TagRole::simple,  TagUse::breaktime},
    {"py",           TagRole::dropped, TagUse::none},
    {"letter",       TagRole::dropped, TagUse::none},
    {"emphasis",     TagRole::span,    TagUse::span},
    {"prosody",      TagRole::span,    TagUse::span},
    {"poem",         TagRole::span,    TagUse::span},
    {"quill_effect", TagRole::span,    TagUse::span},
};
// clang-format on

// Reads the tag whose name begins at `name`, as far as its ">". False when it is none.
bool read_opening(const char* name, ForwardFinder& tag_ends, Tag& tag) {
    const auto* kind =
        std::find_if(std::begin(TAG_NAMES), std::end(TAG_NAMES),
                     [=](const TagName& row) { return begins_with(name, row.prefix); });
    if (kind == std::end(TAG_NAMES)) return false;
    const char* end = tag_ends.find(name, '>');
    if (end == nullptr) return false;
    const char* limit = std::min(end, name + TAG_NAME_MAX + 1);
    const char* equal = std::find(name + kind->prefix.size(), limit, '=');
    const char* value = equal == end ? end : equal + 1;
    const auto name_length = static_cast<std::size_t>(equal - name);
    tag = {kind->role,
           name_length == kind->prefix.size() ? kind->use : TagUse::none,
           {name, name_length},
           {value, static_cast<std::size_t>(end - value)},
           {},
           end + 1};
    return name_length <= TAG_NAME_MAX;
}

// Reads on to the end of a paired tag. One that is never closed: a span runs to the end of the
// text; any other is passed over by itself, so that the words behind it stay.
void read_content(Tag& tag, PairedTags& paired_tags) {
    if (tag.role == TagRole::simple) return;
    const char* content = tag.behind;
    const char* pc_temp = paired_tags.find_closing(content, tag.name);
    const bool closed = pc_temp != nullptr;
    if (!closed) pc_temp = tag.use == TagUse::span ? content + std::strlen(content) : content;
    assert(pc_temp != NULL);
    tag.content = {content, static_cast<std::size_t>(pc_temp - content)};
    tag.behind = pc_temp + (closed ? tag.name.size() + std::strlen("</>") : 0);
}

void copy(std::string_view text, char* target) {
    std::copy(text.begin(), text.end(), target);
    target[text.size()] = '\0';
}

void copy_parts(const Tag& tag, char* sz_tag, char* sz_value, char* sz_target) {
    copy(tag.name, sz_tag);
    copy(tag.value, sz_value);
    copy(tag.content, sz_target);
}

}  // namespace

bool Scanner::step() {
    met_tag_ = false;
    const bool completed = advance();
    if (completed) word_[word_length_] = '\0';
    return completed;
}

// Whether the word is complete now.
bool Scanner::advance() {
    if (word_length_ == WORD_MAX_LEN - 1) return true;
    const char c = *at_;
    if (c == ' ') {
        ++at_;
        return has_word();
    }
    const bool last = at_[1] == '\0';
    if (c == '<' && !last) {
        const Met met = meet_tag();
        if (met != Met::no_tag) return met == Met::word_end;
    }
    word_[word_length_++] = c;
    ++at_;
    return last;
}

// At a "<" that is not the last character. A tag at which something is to be done, and a closing
// tag, end a word that stands directly before them; other tags do not.
Scanner::Met Scanner::meet_tag() {
    const bool is_closing = at_[1] == '/';
    if (!read_opening(at_ + (is_closing ? 2 : 1), tag_ends_, tag_)) return Met::no_tag;
    if (has_word() && (is_closing || tag_.use != TagUse::none)) return Met::word_end;
    const char* content = tag_.behind;
    met_tag_ = !is_closing;  // outside its span, a closing tag closes nothing
    if (met_tag_) read_content(tag_, paired_tags_);
    at_ = tag_.behind;
    // Behind a tag that should have been closed, nothing else would complete the last word.
    const bool never_closed = tag_.role != TagRole::simple && at_ == content;
    return never_closed && at_end() && has_word() ? Met::word_end : Met::tag;
}

}  // namespace tn

char* PostProTnEng::parse_tag(char* sz_text, char* sz_tag, char* sz_value, char* sz_target) {
    assert(*sz_text == '<');
    sz_tag[0] = sz_value[0] = sz_target[0] = '\0';
    tn::ForwardFinder tag_ends;
    tn::PairedTags paired_tags(nullptr);
    tn::Tag tag = {};
    if (!tn::read_opening(sz_text + 1, tag_ends, tag)) return nullptr;
    tn::read_content(tag, paired_tags);
    tn::copy_parts(tag, sz_tag, sz_value, sz_target);
    return sz_text + (tag.behind - sz_text);
}

bool PostProTnEng::filter_text(char* p_word_text, char* sz_char_buf, char* sz_tag, char* sz_value,
                               char* sz_target, int& i, int& j, int& mark) {
    tn::Scanner scanner(p_word_text + i, sz_char_buf, j, nullptr);
    mark = scanner.step() ? 1 : 0;
    if (const tn::Tag* tag = scanner.tag()) tn::copy_parts(*tag, sz_tag, sz_value, sz_target);
    i = static_cast<int>(scanner.at() - p_word_text);
    j = scanner.word_length();
    return true;
}

}  // namespace kavi

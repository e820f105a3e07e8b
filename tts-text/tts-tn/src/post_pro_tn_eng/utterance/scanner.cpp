#include "scanner.h"

#include <algorithm>
#include <cassert>
#include <cstring>

#include "../common/markup_tags.h"
#include "TtsString.h"

namespace kavi {

namespace tn {

namespace {

constexpr std::size_t TAG_NAME_MAX = MEMORY_SIZE_TAG_LABEL_TN - 1;

enum class TagRole {
    none,     // no tag of the language
    simple,   // ends at its ">"
    dropped,  // paired; goes with its content
    span,     // paired; its content is read
};

// A name belongs to the first row that it begins with.
struct TagName {
    std::string_view prefix;
    TagRole role;
};

// clang-format off
constexpr TagName TAG_NAMES[] = {
    {"orgLen",       TagRole::simple},
    {"sil",          TagRole::simple},
    {"silratio",     TagRole::simple},
    {"punc",         TagRole::simple},
    {"pause",        TagRole::simple},
    {"breaktime",    TagRole::simple},
    {"py",           TagRole::dropped},
    {"letter",       TagRole::dropped},
    {"emphasis",     TagRole::span},
    {"prosody",      TagRole::span},
    {"poem",         TagRole::span},
    {"quill_effect", TagRole::span},
};
// clang-format on

TagRole role_of(const char* name) {
    for (const TagName& row : TAG_NAMES) {
        if (begins_with(name, row.prefix)) return row.role;
    }
    return TagRole::none;
}

// The name from behind "<" or "</" to the first "=" or to the tag's end.
std::string_view tag_name(const char* begin, const char* tag_end) {
    const auto length = static_cast<std::size_t>(tag_end - begin);
    const void* equal = std::memchr(begin, '=', length);
    if (equal == nullptr) return {begin, length};
    return {begin, static_cast<std::size_t>(static_cast<const char*>(equal) - begin)};
}

void copy(std::string_view text, char* target) {
    std::memcpy(target, text.data(), text.size());
    target[text.size()] = '\0';
}

// The closing tag of the content that begins at `content`: as many closings of the name are passed
// over as it is opened again before the first of them. Null when there are not enough.
const char* find_closing(const char* content, const char* name, ForwardFinder& closings) {
    constexpr int PATTERN_SIZE = 1024;
    char sz_temp_buf[PATTERN_SIZE];
    char recursize_tag_before[PATTERN_SIZE];
    const char* any_closing = closings.find(content, "</");
    if (any_closing == nullptr) return nullptr;
    tts_snprintf(sz_temp_buf, PATTERN_SIZE, "</%s>", name);
    tts_snprintf(recursize_tag_before, PATTERN_SIZE, "<%s=", name);
    const char* closing = std::strstr(any_closing, sz_temp_buf);
    if (closing == nullptr) return nullptr;
    const std::string_view before(content, static_cast<std::size_t>(closing - content));
    const std::string_view opening = recursize_tag_before;
    for (std::size_t nested = before.find(opening); nested != std::string_view::npos;
         nested = before.find(opening, nested + opening.size())) {
        closing = std::strstr(closing + 1, sz_temp_buf);
        if (closing == nullptr) return nullptr;
    }
    return closing;
}

}  // namespace

bool Scanner::step() {
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
    const char* begin = at_ + (is_closing ? 2 : 1);
    const TagRole role = role_of(begin);
    if (role == TagRole::none) return Met::no_tag;
    const char* end = tag_end_.find(begin, ">");
    if (end == nullptr) return Met::no_tag;
    const std::string_view name = tag_name(begin, end);
    if (name.size() > TAG_NAME_MAX) return Met::no_tag;
    const bool acts = name == "punc" || name == "breaktime" || is_span_name(name);
    if (has_word() && (is_closing || acts)) return Met::word_end;
    if (is_closing) {  // outside its span: there is nothing to close
        at_ += end + 1 - at_;
        return Met::tag;
    }
    at_ = engine_.parse_tag(at_, tag_.name, tag_.value, tag_.content, &closings_);
    // Behind a tag that should have been closed, nothing else would complete the last word.
    const bool never_closed = role != TagRole::simple && at_ == end + 1;
    return never_closed && at_end() && has_word() ? Met::word_end : Met::tag;
}

}  // namespace tn

// A paired tag that is never closed: a span runs to the end of the text; any other is passed over
// by itself, so that the words behind it stay.
char* PostProTnEng::parse_tag(char* sz_text, char* sz_tag, char* sz_value, char* sz_target,
                              tn::ForwardFinder* p_closings) {
    assert(*sz_text == '<');
    tn::TagBuffers{sz_tag, sz_value, sz_target}.clear();
    const tn::TagRole role = tn::role_of(sz_text + 1);
    char* end = std::strchr(sz_text, '>');
    if (end == nullptr || role == tn::TagRole::none) return nullptr;
    const std::string_view name = tn::tag_name(sz_text + 1, end);
    if (name.size() > tn::TAG_NAME_MAX) return nullptr;
    tn::copy(name, sz_tag);
    const char* value = std::min<const char*>(name.data() + name.size() + 1, end);
    tn::copy({value, static_cast<std::size_t>(end - value)}, sz_value);

    char* content = end + 1;
    if (role == tn::TagRole::simple) return content;
    tn::ForwardFinder fresh;
    const char* pc_temp =
        tn::find_closing(content, sz_tag, p_closings != nullptr ? *p_closings : fresh);
    const bool closed = pc_temp != nullptr;
    if (!closed) pc_temp = tn::is_span_name(name) ? content + std::strlen(content) : content;
    assert(pc_temp != NULL);
    const auto length = static_cast<std::size_t>(pc_temp - content);
    tn::copy({content, length}, sz_target);
    return content + length + (closed ? name.size() + std::strlen("</>") : 0);
}

bool PostProTnEng::filter_text(char* p_word_text, char* sz_char_buf, char* sz_tag, char* sz_value,
                               char* sz_target, int& i, int& j, int& mark) {
    tn::Scanner scanner(*this, p_word_text, sz_char_buf, {sz_tag, sz_value, sz_target}, i, j);
    mark = scanner.step() ? 1 : 0;
    i = scanner.position();
    j = scanner.word_length();
    return true;
}

}  // namespace kavi

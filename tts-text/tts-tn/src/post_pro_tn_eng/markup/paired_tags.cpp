#include "paired_tags.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "TtsString.h"

namespace kavi::tn {

namespace {

constexpr std::size_t TAG_NAME_MAX = MEMORY_SIZE_TAG_LABEL_TN - 1;
constexpr std::size_t OPENING = 1;  // characters before the name
constexpr std::size_t CLOSING = 2;

// By name, and where the name is the same, by place.
bool is_before(std::string_view a, std::string_view b) {
    const int order = a.compare(b);
    return order != 0 ? order < 0 : a.data() < b.data();
}

// How far a name goes, as far as one can; a tag ends there or has its value behind it.
std::size_t name_length(const char* name) {
    std::size_t length = 0;
    while (length < TAG_NAME_MAX && name[length] != '=' && name[length] != '>' &&
           name[length] != '\0') {
        ++length;
    }
    return length;
}

}  // namespace

// ---- sorted names ----

void SortedNames::add(std::string_view name) {
    new (end_++) std::string_view(name);
}

// By a heap, whose code is small.
void SortedNames::sort() {
    std::make_heap(begin_, end_, is_before);
    std::sort_heap(begin_, end_, is_before);
}

const std::string_view* SortedNames::find(std::string_view name, const char* place) const {
    return std::lower_bound(begin_, end_, name, [=](std::string_view entry, std::string_view) {
        const int order = entry.compare(name);
        return order != 0 ? order < 0 : entry.data() < place;
    });
}

// ---- paired tags ----

const char* PairedTags::find_closing(const char* content, std::string_view name) {
    constexpr int FAILURES_MAX = 8;
    if (failures_ == FAILURES_MAX && !sorted_) sort_tags(content);
    const char* closing = is_sorted_ ? look_up(content, name) : search(content, name);
    if (closing == nullptr) ++failures_;
    return closing;
}

const char* PairedTags::search(const char* content, std::string_view name) {
    constexpr int PATTERN_SIZE = 1024;
    char sz_temp_buf[PATTERN_SIZE];
    char recursize_tag_before[PATTERN_SIZE];
    const char* any_closing = any_closing_.find(content, "</");
    if (any_closing == nullptr) return nullptr;
    const auto length = static_cast<int>(name.size());
    tts_snprintf(sz_temp_buf, PATTERN_SIZE, "</%.*s>", length, name.data());
    tts_snprintf(recursize_tag_before, PATTERN_SIZE, "<%.*s=", length, name.data());
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

void PairedTags::sort_tags(const char* text) {
    const auto tags = static_cast<std::size_t>(std::count(text, text + std::strlen(text), '<'));
    SortedTags& sorted = sorted_.emplace(arena_, tags);
    is_sorted_ = sorted.openings && sorted.closings;
    if (!is_sorted_) return;
    for (const char* at = text; *at != '\0'; ++at) {
        if (*at != '<') continue;
        const bool closes = at[1] == '/';
        const char* name = at + (closes ? CLOSING : OPENING);
        const std::size_t length = name_length(name);
        if (name[length] == (closes ? '>' : '=')) {
            (closes ? sorted.closings : sorted.openings).add({name, length});
        }
    }
    sorted.openings.sort();
    sorted.closings.sort();
}

const char* PairedTags::look_up(const char* content, std::string_view name) const {
    const std::string_view* const end = sorted_->closings.end();
    const std::string_view* closing = sorted_->closings.find(name, content + CLOSING);
    if (closing == end || *closing != name) return nullptr;
    const auto nested = sorted_->openings.find(name, closing->data()) -
                        sorted_->openings.find(name, content + OPENING);
    const std::string_view* const match = closing + std::min(nested, end - closing);
    if (match == end || *match != name) return nullptr;
    return match->data() - CLOSING;
}

}  // namespace kavi::tn

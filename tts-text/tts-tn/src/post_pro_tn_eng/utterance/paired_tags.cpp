#include "paired_tags.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "TtsString.h"

namespace kavi::tn {

namespace {

constexpr std::size_t NAME_MAX = MEMORY_SIZE_TAG_LABEL_TN - 1;
constexpr std::size_t OPENING = 1;  // characters before the name
constexpr std::size_t CLOSING = 2;

// By name, and where the name is the same, by place.
bool is_before(std::string_view a, std::string_view b) {
    const int order = a.compare(b);
    return order != 0 ? order < 0 : a.data() < b.data();
}

}  // namespace

// ---- sorted names ----

void SortedNames::add(std::string_view name) {
    new (end_++) std::string_view(name);
}

void SortedNames::sort() {
    std::sort(begin_, end_, is_before);
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
    if (failures_ == FAILURES_MAX && !openings_) sort_tags(content);
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

void PairedTags::sort_tags(std::string_view text) {
    const auto tags = static_cast<std::size_t>(std::count(text.begin(), text.end(), '<'));
    openings_.emplace(arena_, tags);
    closings_.emplace(arena_, tags);
    is_sorted_ = *openings_ && *closings_;
    if (!is_sorted_) return;
    for (std::size_t at = text.find('<'); at != std::string_view::npos;
         at = text.find('<', at + 1)) {
        const bool closes = text.substr(at + OPENING, 1) == "/";
        const std::string_view name = text.substr(at + (closes ? CLOSING : OPENING), NAME_MAX + 1);
        const std::size_t length = name.find_first_of("=>");
        if (length == std::string_view::npos || (name[length] == '>') != closes) continue;
        (closes ? *closings_ : *openings_).add(name.substr(0, length));
    }
    openings_->sort();
    closings_->sort();
}

const char* PairedTags::look_up(const char* content, std::string_view name) const {
    const std::string_view* const end = closings_->end();
    const std::string_view* closing = closings_->find(name, content + CLOSING);
    if (closing == end || *closing != name) return nullptr;
    const auto nested =
        openings_->find(name, closing->data()) - openings_->find(name, content + OPENING);
    if (end - closing <= nested || closing[nested] != name) return nullptr;
    return closing[nested].data() - CLOSING;
}

}  // namespace kavi::tn

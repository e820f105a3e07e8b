// Searching and looking up closing tags; paired_tags.h explains the rule and the cost.

#include "paired_tags.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "../common/limits.h"

namespace kavi::tn {

namespace {

constexpr std::size_t OPENING = 1;  // characters before the name: "<"
constexpr std::size_t CLOSING = 2;  // "</"

// The order of SortedNames: by name, then by position.
bool is_before(std::string_view a, std::string_view b) {
    const int order = a.compare(b);
    return order != 0 ? order < 0 : a.data() < b.data();
}

// The length of the name at `name`: up to "=", ">" or NUL, or TAG_NAME_MAX characters.
std::size_t name_length(const char* name) {
    std::size_t length = 0;
    while (length < TAG_NAME_MAX && name[length] != '=' && name[length] != '>' &&
           name[length] != '\0') {
        ++length;
    }
    return length;
}

// Whether `name` and then the character `end` are at `text`.
bool is_name(const char* text, std::string_view name, char end) {
    return std::strncmp(text, name.data(), name.size()) == 0 && text[name.size()] == end;
}

}  // namespace

// ---- sorted names ----

bool SortedNames::reserve(std::size_t capacity) {
    const std::size_t size = (capacity + 1) * sizeof(std::string_view);
    begin_ = static_cast<std::string_view*>(mem_stack_request_buf(size, MEM_COMMON, arena_));
    end_ = begin_;
    return begin_ != nullptr;
}

void SortedNames::add(std::string_view name) {
    new (end_++) std::string_view(name);
}

void SortedNames::sort() {
    std::sort(begin_, end_, is_before);
}

const std::string_view* SortedNames::find(std::string_view name, const char* from) const {
    return std::lower_bound(begin_, end_, name, [=](std::string_view entry, std::string_view) {
        const int order = entry.compare(name);
        return order != 0 ? order < 0 : entry.data() < from;
    });
}

// ---- paired tags ----

PairedTags::PairedTags(mem_stack_handle arena) : openings_(arena), closings_(arena) {}

const char* PairedTags::find_closing(const char* content, const char* end, std::string_view name) {
    constexpr int FAILURES_MAX = 8;
    const char* any_closing = any_closing_.find(content, "</");
    if (any_closing == nullptr || any_closing >= end || is_unclosed(name, end)) return nullptr;
    if (failures_ == FAILURES_MAX) {
        ++failures_;  // so that this is tried once only
        sort_tags(content);
    }
    const char* closing = is_sorted_ ? look_up(content, name) : search(content, end, name);
    if (closing != nullptr && closing + CLOSING + name.size() < end) return closing;
    ++failures_;
    return nullptr;
}

const char* PairedTags::search(const char* content, const char* end, std::string_view name) {
    std::size_t to_pass = 0;
    bool closed = false;
    for (const char* at = content; at < end; ++at) {
        at = std::strchr(at, '<');
        if (at == nullptr) break;
        if (at[1] == '/') {
            if (!is_name(at + CLOSING, name, '>')) continue;
            if (to_pass-- == 0) return at;
            closed = true;
        } else if (!closed && is_name(at + OPENING, name, '=')) {
            ++to_pass;
        }
    }
    if (!closed) {
        unclosed_ = name;
        unclosed_to_ = end;
    }
    return nullptr;
}

void PairedTags::sort_tags(const char* text) {
    const auto tags = static_cast<std::size_t>(std::count(text, text + std::strlen(text), '<'));
    is_sorted_ = openings_.reserve(tags) && closings_.reserve(tags);
    if (!is_sorted_) return;
    for (const char* at = text; *at != '\0'; ++at) {
        if (*at != '<') continue;
        const bool closes = at[1] == '/';
        const char* name = at + (closes ? CLOSING : OPENING);
        const std::size_t length = name_length(name);
        if (name[length] == (closes ? '>' : '=')) {
            (closes ? closings_ : openings_).add({name, length});
        }
    }
    openings_.sort();
    closings_.sort();
}

const char* PairedTags::look_up(const char* content, std::string_view name) const {
    const std::string_view* const end = closings_.end();
    const std::string_view* closing = closings_.find(name, content + CLOSING);
    if (closing == end || *closing != name) return nullptr;
    const auto nested =
        openings_.find(name, closing->data()) - openings_.find(name, content + OPENING);
    const std::string_view* const match = closing + std::min(nested, end - closing);
    if (match == end || *match != name) return nullptr;
    return match->data() - CLOSING;
}

}  // namespace kavi::tn

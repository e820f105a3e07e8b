// Which closing tag a paired tag goes with.
#ifndef KAVI_TN_PAIRED_TAGS_H
#define KAVI_TN_PAIRED_TAGS_H

#include <string_view>

#include "../common/forward_finder.h"
#include "MemoryStack.h"

namespace kavi::tn {

// Names of tags in one text, found again by name and place. Empty until it has memory.
class SortedNames {
  public:
    explicit SortedNames(mem_stack_handle arena) : arena_(arena) {}
    ~SortedNames() {
        if (begin_ != nullptr) mem_stack_release_buf(begin_, 0, MEM_COMMON, arena_);
    }
    SortedNames(const SortedNames&) = delete;
    SortedNames& operator=(const SortedNames&) = delete;

    // Takes memory for so many, once. False when the arena refused it.
    bool reserve(std::size_t capacity);

    void add(std::string_view name);  // a piece of the text
    void sort();

    // The first of the name at `place` or after it; what follows it is the next of that name, or of
    // another, or the end.
    const std::string_view* find(std::string_view name, const char* place) const;
    const std::string_view* end() const { return end_; }

  private:
    mem_stack_handle arena_;
    std::string_view* begin_ = nullptr;
    std::string_view* end_ = nullptr;
};

// Serves one scan of one text. A search that succeeds is paid for by the text that it closes. One
// that fails is not: after a few of those the tags ahead are sorted, so that a text full of
// unclosed tags is not searched to its end for each. Without an arena, or refused by it, that is
// only slower.
class PairedTags {
  public:
    explicit PairedTags(mem_stack_handle arena);

    // The closing tag of the content that begins at `content`: as many closings of the name are
    // passed over as it is opened again before the first of them. Null when there are not enough
    // before `end`. `content` moves forward from call to call.
    const char* find_closing(const char* content, const char* end, std::string_view name);

  private:
    void sort_tags(const char* text);
    const char* search(const char* content, const char* end, std::string_view name);
    const char* look_up(const char* content, std::string_view name) const;

    // Whether it is known that no tag of the name closes anything before `end`.
    bool is_unclosed(std::string_view name, const char* end) const {
        return end <= unclosed_to_ && name == unclosed_;
    }

    ForwardFinder any_closing_;
    int failures_ = 0;
    std::string_view unclosed_;          // a name that no tag closes
    const char* unclosed_to_ = nullptr;  // up to here
    bool is_sorted_ = false;
    SortedNames openings_;  // those with a value; the others do not count
    SortedNames closings_;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_PAIRED_TAGS_H

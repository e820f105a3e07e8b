// Which closing tag a paired tag goes with.
#ifndef KAVI_TN_PAIRED_TAGS_H
#define KAVI_TN_PAIRED_TAGS_H

#include <optional>
#include <string_view>

#include "../common/forward_finder.h"
#include "../common/scratch.h"

namespace kavi::tn {

// Names of tags in one text, found again by name and place.
class SortedNames {
  public:
    SortedNames(mem_stack_handle arena, std::size_t capacity)
        : memory_(arena, (capacity + 1) * sizeof(std::string_view)),
          begin_(reinterpret_cast<std::string_view*>(memory_.text())),
          end_(begin_) {}

    explicit operator bool() const { return static_cast<bool>(memory_); }
    void add(std::string_view name);  // a piece of the text; below the capacity
    void sort();

    // The first of the name at `place` or after it; what follows it is the next of that name, or of
    // another, or the end.
    const std::string_view* find(std::string_view name, const char* place) const;
    const std::string_view* end() const { return end_; }

  private:
    Scratch memory_;
    std::string_view* begin_;
    std::string_view* end_;
};

// Serves one scan of one text. A search that succeeds is paid for by the text that it closes. One
// that fails is not: after a few of those the tags ahead are sorted, so that a text full of
// unclosed tags is not searched to its end for each. Without an arena, or refused by it, that is
// only slower.
class PairedTags {
  public:
    explicit PairedTags(mem_stack_handle arena) : arena_(arena) {}

    // The closing tag of the content that begins at `content`: as many closings of the name are
    // passed over as it is opened again before the first of them. Null when there are not enough
    // before `end`. `content` moves forward from call to call.
    const char* find_closing(const char* content, const char* end, std::string_view name);

  private:
    struct SortedTags {
        SortedTags(mem_stack_handle arena, std::size_t n)
            : openings(arena, n), closings(arena, n) {}

        SortedNames openings;  // those with a value; the others do not count
        SortedNames closings;
    };

    void sort_tags(const char* text);
    const char* search(const char* content, const char* end, std::string_view name);
    const char* look_up(const char* content, std::string_view name) const;

    mem_stack_handle arena_;
    ForwardFinder any_closing_;
    int failures_ = 0;
    bool is_sorted_ = false;
    std::optional<SortedTags> sorted_;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_PAIRED_TAGS_H

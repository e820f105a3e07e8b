// The queue of sections.
#ifndef KAVI_TN_SECTION_QUEUE_H
#define KAVI_TN_SECTION_QUEUE_H

#include <string_view>

#include "../common/forward_finder.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

constexpr std::size_t SECTION_TEXT_MAX = WORD_MAX_LEN - 1;

// How much of a text that is not empty makes the next section: a run of letters or digits, a tag,
// or one byte. `tag_ends` serves one pass over the text.
std::size_t section_length(const char* text, ForwardFinder& tag_ends);

// Gives every section of the queue back to the arena and empties it.
void release_sections(Section*& head, mem_stack_handle arena);

// A queue that gives its sections back at the end.
class SectionQueue {
  public:
    explicit SectionQueue(mem_stack_handle arena) : arena_(arena) {}
    ~SectionQueue() { release_sections(head, arena_); }
    SectionQueue(const SectionQueue&) = delete;
    SectionQueue& operator=(const SectionQueue&) = delete;

    // Appends a section. What stands in it behind its text is not cleared: only a host could look
    // there, and no host sees this queue. False when the arena refused it.
    bool append(std::string_view text);

    Section* head = nullptr;

  private:
    Section* tail_ = nullptr;
    mem_stack_handle arena_;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_SECTION_QUEUE_H

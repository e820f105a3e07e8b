// The queue of sections.
#ifndef KAVI_TN_SECTION_QUEUE_H
#define KAVI_TN_SECTION_QUEUE_H

#include <string_view>

#include "post_pro_tn_eng.h"

namespace kavi::tn {

// Gives every section of the queue back to the arena and empties it.
void release_sections(Section*& head, mem_stack_handle arena);

// A queue that gives its sections back at the end.
class SectionQueue {
  public:
    explicit SectionQueue(mem_stack_handle arena) : arena_(arena) {}
    ~SectionQueue() { release_sections(head, arena_); }
    SectionQueue(const SectionQueue&) = delete;
    SectionQueue& operator=(const SectionQueue&) = delete;

    Section* head = nullptr;

  private:
    mem_stack_handle arena_;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_SECTION_QUEUE_H

// Queues of sections for hosts: each section is a block of the arena.

#include <algorithm>
#include <cstring>
#include <new>

#include "section_cut.h"

namespace kavi {

namespace {

Section* last_of(Section* section) {
    while (section != nullptr && section->m_pnext != nullptr) section = section->m_pnext;
    return section;
}

// Appends a section, zero-filled after its text. False when the arena refused the block.
bool append_section(std::string_view text, Section*& head, Section*& tail, mem_stack_handle arena) {
    void* memory = mem_stack_request_buf(sizeof(Section), MEM_COMMON, arena);
    if (memory == nullptr) return false;
    auto* section = new (memory) Section;
    *section = {};
    tn::set_section(*section, text);
    if (head == nullptr) head = section;
    tn::link_section(*section, tail);
    return true;
}

}  // namespace

int PostProTnEng::add_section(char* sz_source, Section*& p_section) {
    if (*sz_source == '\0') return 0;
    const std::size_t length = std::min(std::strlen(sz_source), tn::WORD_LENGTH_MAX);
    Section* tail = last_of(p_section);
    return append_section({sz_source, length}, p_section, tail, _mem_handle) ? 0 : -1;
}

int PostProTnEng::text_to_queue(char* sz_source_text, Section*& sz_section) {
    Section* tail = last_of(sz_section);
    tn::TagEnds tag_ends;
    for (const char* text = sz_source_text; *text != '\0';) {
        const std::string_view section = tn::first_section(text, tag_ends);
        if (!append_section(section, sz_section, tail, _mem_handle)) return -1;
        text += section.size();
    }
    return 0;
}

}  // namespace kavi

// The tokenizer: a sentence to a queue of classified sections.

#include "section_queue.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "../common/ascii.h"
#include "../common/forward_finder.h"
#include "../markup/markup_tags.h"
#include "../common/runs.h"

namespace kavi {

namespace tn {

namespace {

Section* last_of(Section* section) {
    while (section != nullptr && section->m_pnext != nullptr) section = section->m_pnext;
    return section;
}

int class_of(char first) {
    if (is_letter(first)) return STRINGSYMBOL;
    return is_digit(first) ? NUMBERSYMBOL : MARKSYMBOL;
}

// A section with room for a text, its contents unspecified. Null when the arena refused it.
Section* request_section(mem_stack_handle arena) {
    void* memory = mem_stack_request_buf(sizeof(Section), MEM_COMMON, arena);
    return memory != nullptr ? new (memory) Section : nullptr;
}

// Gives a section its text and links it behind `tail`; the queue is empty when `tail` is null.
void link(Section* section, std::string_view text, Section*& head, Section*& tail) {
    std::memcpy(section->sz_char, text.data(), text.size());
    section->sz_char[text.size()] = '\0';
    section->m_nmark = class_of(text[0]);
    section->m_pnext = nullptr;
    section->m_pprevious = tail;
    (tail != nullptr ? tail->m_pnext : head) = section;
    tail = section;
}

// The same for a queue that the host sees: whatever the text leaves of the section is zero.
bool append_cleared(std::string_view text, Section*& head, Section*& tail, mem_stack_handle arena) {
    Section* section = request_section(arena);
    if (section == nullptr) return false;
    *section = {};
    link(section, text, head, tail);
    return true;
}

std::size_t run_length(Run run, const char* text) {
    std::size_t length = 0;
    while (length < SECTION_TEXT_MAX && belongs_to(run, text[length])) ++length;
    return length;
}

}  // namespace

std::size_t section_length(const char* text, ForwardFinder& tag_ends) {
    if (belongs_to(LETTERS, *text)) return run_length(LETTERS, text);
    if (belongs_to(DIGITS, *text)) return run_length(DIGITS, text);
    if (*text == '<' && begins_sentence_tag(text)) {
        const char* end = tag_ends.find(text, '>');
        if (end != nullptr && end < text + SECTION_TEXT_MAX) {
            return static_cast<std::size_t>(end + 1 - text);
        }
    }
    return 1;
}

bool SectionQueue::append(std::string_view text) {
    Section* section = request_section(arena_);
    if (section == nullptr) return false;
    link(section, text, head, tail_);
    return true;
}

void release_sections(Section*& head, mem_stack_handle arena) {
    while (head != nullptr) {
        Section* next = head->m_pnext;
        mem_stack_release_buf(head, 0, MEM_COMMON, arena);
        head = next;
    }
}

}  // namespace tn

int PostProTnEng::add_section(char* sz_source, Section*& p_section) {
    if (*sz_source == '\0') return 0;
    const std::size_t length = std::min(std::strlen(sz_source), tn::SECTION_TEXT_MAX);
    Section* tail = tn::last_of(p_section);
    return tn::append_cleared({sz_source, length}, p_section, tail, _mem_handle) ? 0 : -1;
}

int PostProTnEng::text_to_queue(char* sz_source_text, Section*& sz_section) {
    Section* tail = tn::last_of(sz_section);
    tn::ForwardFinder tag_ends;
    for (const char* text = sz_source_text; *text != '\0';) {
        const std::size_t length = tn::section_length(text, tag_ends);
        if (!tn::append_cleared({text, length}, sz_section, tail, _mem_handle)) return -1;
        text += length;
    }
    return 0;
}

}  // namespace kavi

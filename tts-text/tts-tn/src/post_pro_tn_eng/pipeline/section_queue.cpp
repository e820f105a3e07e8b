// The tokenizer: a sentence to a queue of classified sections.

#include "section_queue.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "../common/ascii.h"
#include "../common/forward_finder.h"
#include "../common/markup_tags.h"

namespace kavi {

namespace tn {

namespace {

constexpr std::size_t SECTION_TEXT_MAX = WORD_MAX_LEN - 1;

Section* last_of(Section* section) {
    while (section != nullptr && section->m_pnext != nullptr) section = section->m_pnext;
    return section;
}

int class_of(char first) {
    if (is_letter(first)) return STRINGSYMBOL;
    return is_digit(first) ? NUMBERSYMBOL : MARKSYMBOL;
}

// Links a new section with this text behind `tail`; the queue is empty when `tail` is null.
bool append_section(std::string_view text, Section*& head, Section*& tail, mem_stack_handle arena) {
    void* memory = mem_stack_request_buf(sizeof(Section), MEM_COMMON, arena);
    if (memory == nullptr) return false;
    Section* section = new (memory) Section();
    std::memcpy(section->sz_char, text.data(), text.size());
    section->m_nmark = class_of(text[0]);
    section->m_pprevious = tail;
    (tail != nullptr ? tail->m_pnext : head) = section;
    tail = section;
    return true;
}

template <typename Predicate>
std::size_t run_length(const char* text, Predicate belongs) {
    std::size_t length = 0;
    while (length < SECTION_TEXT_MAX && belongs(text[length])) ++length;
    return length;
}

// How much of the text makes the next section: a run of letters or digits, a tag, or one byte.
std::size_t section_length(const char* text, ForwardFinder& closing) {
    if (is_letter(*text)) return run_length(text, is_letter);
    if (is_digit(*text)) return run_length(text, is_digit);
    if (*text == '<' && begins_sentence_tag(text)) {
        const char* end = closing.find(text, ">");
        if (end != nullptr && end < text + SECTION_TEXT_MAX) {
            return static_cast<std::size_t>(end + 1 - text);
        }
    }
    return 1;
}

}  // namespace

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
    return tn::append_section({sz_source, length}, p_section, tail, _mem_handle) ? 0 : -1;
}

int PostProTnEng::text_to_queue(char* sz_source_text, Section*& sz_section) {
    Section* tail = tn::last_of(sz_section);
    tn::ForwardFinder closing;
    for (const char* text = sz_source_text; *text != '\0';) {
        const std::size_t length = tn::section_length(text, closing);
        if (!tn::append_section({text, length}, sz_section, tail, _mem_handle)) return -1;
        text += length;
    }
    return 0;
}

}  // namespace kavi

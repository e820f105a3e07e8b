// Any bytes into the tokenizer, with an arena that may refuse: no byte is lost on the way to the
// sections, nothing but letters, blanks and tags comes out, and reading a sentence piece by piece
// gives what reading all of its sections gives.

#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kavi;
    fuzz::StrictEngine strict;
    std::string text = strict.take_refusals(data, size);
    Section* head = nullptr;
    const bool cut = strict.engine.text_to_queue(text.data(), head) == 0;
    std::string sections;
    for (const Section* s = head; s != nullptr; s = s->m_pnext) sections += s->sz_char;
    fuzz::require(cut ? sections == text : text.compare(0, sections.size(), sections) == 0);

    std::string by_sections(SZ_TEXT_MAX_LEN, '\0');
    char nothing[] = "";
    const bool comparable = cut && !strict.may_refuse() &&
                            strict.engine.section_process(head, by_sections.data()) == 0 &&
                            strict.engine.eng_text_tokenize(nothing, by_sections.data()) == 0;
    while (head != nullptr) {
        Section* next = head->m_pnext;
        mem_stack_release_buf(head, 0, MEM_COMMON, &strict.arena);
        head = next;
    }
    strict.arena.requests = 0;
    const std::string by_pieces = strict.tokenize(text.data());
    fuzz::require(!comparable || by_pieces == by_sections.c_str());
    return 0;
}

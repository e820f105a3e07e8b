// The object itself, and the second public step from end to end.

#include <cstring>

#include "../common/ascii.h"
#include "../common/forward_finder.h"
#include "post_pro_tn_eng.h"
#include "section_queue.h"

namespace kavi {

PostProTnEng::PostProTnEng() : _mem_handle(nullptr) {}

void PostProTnEng::init(mem_stack_handle mem_handle) {
    _mem_handle = mem_handle;
}

int PostProTnEng::eng_text_tokenize(char* sz_source_text, char* sz_target_text) {
    tn::SectionQueue queue(_mem_handle);
    if (text_to_queue(sz_source_text, queue.head) != 0) return -1;
    if (section_process(queue.head, sz_target_text) != 0) return -1;
    re_regular(sz_target_text);
    return 0;
}

// Leaves only letters and blanks outside tags, and no blank at the end.
void PostProTnEng::re_regular(char* sz_source_text) {
    tn::ForwardFinder closing;
    char* text = sz_source_text;
    char* end = text;  // behind the last byte that is no blank
    while (*text != '\0') {
        const char* tag_end = *text == '<' ? closing.find(text, '>') : nullptr;
        if (tag_end != nullptr) {
            text += tag_end + 1 - text;
            end = text;
            continue;
        }
        if (tn::is_letter(*text)) {
            end = text + 1;
        } else {
            *text = ' ';
        }
        ++text;
    }
    *end = '\0';
}

}  // namespace kavi

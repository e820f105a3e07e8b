// The object itself, and the second public step from end to end.

#include <cstring>

#include "../common/ascii.h"
#include "../common/bounded_text.h"
#include "../common/forward_finder.h"
#include "../common/scratch.h"
#include "dispatcher.h"
#include "plain_text.h"
#include "post_pro_tn_eng.h"
#include "section_queue.h"

namespace kavi {

PostProTnEng::PostProTnEng() : _mem_handle(nullptr) {}

void PostProTnEng::init(mem_stack_handle mem_handle) {
    _mem_handle = mem_handle;
}

namespace {

// Appends the sections of the text at `text` and returns where they end: behind the first plain
// word that is not glued to what follows. No reader looks past it from either side. Null when the
// arena refused a section.
const char* append_sections(const char* text, tn::ForwardFinder& tag_ends,
                            tn::SectionQueue& queue) {
    bool to_the_end = false;
    while (*text != '\0') {
        const std::string_view section(text, tn::section_length(text, tag_ends));
        if (!queue.append(section)) return nullptr;
        text += section.size();
        if (section == "<") to_the_end = true;  // there may be a ">" for it
        const bool glued = tn::is_letter(*text) || tn::is_digit(*text);
        if (!to_the_end && !glued && tn::is_plain_word(section)) break;
    }
    return text;
}

}  // namespace

// Sections are made only of what a reader has to look at: the plain text between goes straight to
// the output.
int PostProTnEng::eng_text_tokenize(char* sz_source_text, char* sz_target_text) {
    // Without room for a section no sentence is read, so that a host learns of it with the first.
    if (*sz_source_text != '\0' && !tn::Scratch(_mem_handle, sizeof(Section))) return -1;
    tn::BoundedText output(sz_target_text, SZ_TEXT_MAX_LEN);
    const int length = output.length();
    if (length == SZ_TEXT_MAX_LEN) return -1;  // no text: nothing terminates it
    const char* const text_end = sz_source_text + std::strlen(sz_source_text);
    tn::ForwardFinder tag_ends;
    bool all_plain = true;
    for (const char* text = sz_source_text;;) {
        text = tn::read_plain_text(text, text_end, tag_ends, output);
        if (text == text_end) break;
        all_plain = false;
        tn::SectionQueue queue(_mem_handle);
        text = append_sections(text, tag_ends, queue);
        if (text == nullptr) {
            output.cut(output.length() - length);
            return -1;
        }
        const ReadingRule rule = SectionDispatcher(*this, queue.head, output).run();
        if (rule == ReadingRule::full) return -1;
        if (rule == ReadingRule::end) break;
    }
    if (all_plain && length == 0) {
        output.cut_blanks();
    } else {
        re_regular(sz_target_text);
    }
    return 0;
}

// Leaves only letters and blanks outside tags, and no blank at the end.
void PostProTnEng::re_regular(char* sz_source_text) {
    tn::ForwardFinder tag_ends;
    char* text = sz_source_text;
    char* end = text;  // behind the last byte that is no blank
    while (*text != '\0') {
        const char* tag_end = *text == '<' ? tag_ends.find(text, '>') : nullptr;
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

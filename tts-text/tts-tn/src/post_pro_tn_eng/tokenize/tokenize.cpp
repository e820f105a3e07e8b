// Plain text and patterns in turn, to the end of the sentence.

#include "tokenize.h"

#include <cstring>

#include "../common/arena.h"
#include "../common/ascii.h"
#include "dispatcher.h"
#include "plain_text.h"
#include "token_window.h"

namespace kavi {

namespace tn {

int tokenize(const char* sz_source_text, char* sz_target_text, const ReadingObserver* observer) {
    BoundedText output(sz_target_text, SZ_TEXT_MAX_LEN);
    if (output.length() == SZ_TEXT_MAX_LEN) return -1;  // not NUL-terminated
    bool is_all_words = output.length() == 0;
    TagEnds tag_ends;
    TokenWindow tokens(TokenWindow::Reach::plain_word, tag_ends);
    const char* const text_end = sz_source_text + std::strlen(sz_source_text);
    for (const char* text = sz_source_text;;) {
        text = read_plain_text(text, text_end, tag_ends, output, observer);
        if (text == nullptr) return -1;
        if (*text == '\0') break;
        const WalkResult result = walk(tokens, tokens.begin(text), output, observer);
        if (result.outcome == Outcome::full) return -1;
        is_all_words = is_all_words && result.is_all_words;
        if (result.outcome == Outcome::ended) break;
        text = tokens.end();
    }
    if (is_all_words) {
        output.cut_blanks();  // the output has letters, blanks and tags only
    } else {
        re_regular(sz_target_text);
    }
    return 0;
}

void read_step_by_step(const char* sentence, BoundedText& output, const ReadingObserver& observer) {
    TagEnds tag_ends;
    TokenWindow tokens(TokenWindow::Reach::text_end, tag_ends);
    walk(tokens, tokens.begin(sentence), output, &observer);
}

void re_regular(char* sz_source_text) {
    TagEnds tag_ends;
    char* text = sz_source_text;
    char* end = text;  // after the last letter or tag
    while (*text != '\0') {
        const std::string_view tag = *text == '<' ? tag_ends.tag_at(text) : std::string_view();
        if (!tag.empty()) {
            text += tag.size();
            end = text;
            continue;
        }
        if (is_letter(*text)) {
            end = text + 1;
        } else {
            *text = ' ';
        }
        ++text;
    }
    *end = '\0';
}

}  // namespace tn

// Tokens are views of the text, so no section is stored. Its block is requested because hosts are
// promised a failure when the arena has no room for one.
int PostProTnEng::eng_text_tokenize(char* sz_source_text, char* sz_target_text) {
    if (*sz_source_text != '\0' && !tn::gives_block(_mem_handle, sizeof(Section))) return -1;
    return tn::tokenize(sz_source_text, sz_target_text, nullptr);
}

int PostProTnEng::section_process(Section* p_section, char* sz_target_text) {
    tn::BoundedText output(sz_target_text, SZ_TEXT_MAX_LEN);
    tn::TokenWindow tokens(p_section);
    const tn::WalkResult result = tn::walk(tokens, tokens.begin(), output, nullptr);
    return result.outcome == tn::Outcome::full ? -1 : 0;
}

}  // namespace kavi

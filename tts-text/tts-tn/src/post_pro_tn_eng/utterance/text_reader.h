// The one loop that reads tagged text, for counting its words and for storing them alike, so that
// the two cannot disagree.
#ifndef KAVI_TN_TEXT_READER_H
#define KAVI_TN_TEXT_READER_H

#include <cstring>
#include <string_view>

#include "../common/runs.h"
#include "../common/scratch.h"
#include "scanner.h"

namespace kavi::tn {

// Hands what a tag tells to the visitor. False when that said so, or the arena had no room for the
// content of a span.
template <typename Visitor>
bool visit_tag(const Tag& tag, mem_stack_handle arena, Visitor& visitor) {
    switch (tag.use) {
        case TagUse::punc: return visitor.punc(tag.value);
        case TagUse::breaktime: return visitor.breaktime(tag.value);
        case TagUse::span: {
            const std::size_t length = tag.content.size();
            Scratch content(arena, length + 1, length + 1);
            if (!content) return false;
            std::memcpy(content.text(), tag.content.data(), length);
            content.text()[length] = '\0';
            return visitor.span(tag.name, tag.value, content.text());
        }
        default: return true;
    }
}

// Reads what is no usual word, step by step: at least up to `end`, and on to where no word has
// begun.
template <typename Visitor>
bool read_by_steps(Scanner& scanner, const char* end, mem_stack_handle arena, Visitor& visitor) {
    do {
        bool go_on = true;
        if (scanner.step()) {
            go_on = visitor.word(scanner.word());
            scanner.clear_word();
        } else if (const Tag* tag = scanner.tag()) {
            go_on = visit_tag(*tag, arena, visitor);
        }
        if (!go_on) return false;
    } while (!scanner.at_end() && (scanner.has_word() || scanner.at() < end));
    return true;
}

// Reads `text` to its end and hands what it meets to the visitor: word(word), punc(name),
// breaktime(value) and span(name, value, content). Each answers whether to go on; false when one
// did not, or the arena refused a buffer. A NUL follows the text; `word` holds WORD_MAX_LEN bytes.
template <typename Visitor>
bool read_text(std::string_view text, char* word, mem_stack_handle arena, Visitor& visitor) {
    Scanner scanner(text.data(), word, 0, arena);
    scanner.clear_word();
    const char* const text_end = text.data() + text.size();
    for (const char* at = text.data();;) {
        const char* end = skip_word(at, text_end);
        const auto length = static_cast<std::size_t>(end - at);
        if (length > 0 && length < WORD_MAX_LEN && *end == ' ') {
            if (!visitor.word({at, length})) return false;  // the usual word: nothing is copied
            at = end + 1;
        } else if (*at == ' ') {
            ++at;
        } else if (*at == '\0') {
            return true;
        } else {
            scanner.go_on_at(at);
            if (!read_by_steps(scanner, end, arena, visitor)) return false;
            at = scanner.at();
        }
    }
}

// The same for the text of a span, with a word buffer of its own.
template <typename Visitor>
bool read_span(std::string_view text, mem_stack_handle arena, Visitor& visitor) {
    Scratch word(arena, WORD_MAX_LEN, WORD_MAX_LEN);
    return word && read_text(text, word.text(), arena, visitor);
}

}  // namespace kavi::tn

#endif  // KAVI_TN_TEXT_READER_H

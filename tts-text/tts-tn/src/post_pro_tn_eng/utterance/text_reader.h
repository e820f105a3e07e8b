// The one loop that reads tagged text, for counting its words and for storing them alike, so that
// the two cannot disagree.
#ifndef KAVI_TN_TEXT_READER_H
#define KAVI_TN_TEXT_READER_H

#include <algorithm>
#include <cstring>
#include <string_view>

#include "../common/runs.h"
#include "scanner.h"

namespace kavi::tn {

// The first place from `text` on where a word of tagged text may end: a character below "@", or
// the text's end.
inline const char* find_word_end(const char* text, const char* text_end) {
    for (; text_end - text >= 8; text += 8) {
        const Eight below = below_letters(eight_of(text));
        if (below != 0) return text + first_of(below);
    }
    while (text != text_end && (*text & '@') != 0) ++text;
    return text;
}

// The name in the "<punc=" tag at `text`, where no word has begun; empty when there is none that
// ends before `end` and may be the name of a mark. The scanner reads such tags too: this is less.
inline std::string_view mark_at(const char* text, const char* end) {
    constexpr std::string_view PREFIX = "<punc=";
    constexpr std::size_t LONGEST = 8;
    const auto size = static_cast<std::size_t>(end - text);
    if (size < PREFIX.size() || std::memcmp(text, PREFIX.data(), PREFIX.size()) != 0) return {};
    const char* name = text + PREFIX.size();
    const std::size_t limit = std::min(size - PREFIX.size(), LONGEST + 1);
    std::size_t length = 0;
    while (length != limit && name[length] != '>') ++length;
    if (length == limit) return {};
    return {name, length};
}

template <typename Visitor>
bool read_text(Scanner& scanner, Visitor& visitor);

// Hands what the last tag tells to the visitor; a span is read to its end as a text by itself.
// False when the visitor said so.
template <typename Visitor>
bool visit_tag(const Tag& tag, Scanner& scanner, Visitor& visitor) {
    switch (tag.use) {
        case TagUse::punc: visitor.punc(tag.value); return true;
        case TagUse::breaktime: visitor.breaktime(tag.value); return true;
        case TagUse::span: {
            const char* const end = scanner.end();
            const char* const after = tag.after;  // the scanner reads its next tag into this one
            const char* const content = tag.content.data();
            Visitor inside(visitor);
            if (!inside.enter(tag.name, tag.value)) return false;
            scanner.go_on_at(content, content + tag.content.size());
            const bool read = inside.is_too_deep() || read_text(scanner, inside);
            visitor.leave(inside);
            scanner.clear_word();  // one that a tag at the end of the span has left incomplete
            scanner.go_on_at(after, end);
            return read;
        }
        default: return true;
    }
}

// Reads what is no usual word, step by step: at least up to `goal`, and on to where no word has
// begun.
template <typename Visitor>
bool read_by_steps(Scanner& scanner, const char* goal, Visitor& visitor) {
    do {
        bool go_on = true;
        if (scanner.step()) {
            go_on = visitor.word(scanner.word(), scanner.word_begin());
            scanner.clear_word();
        } else if (const Tag* tag = scanner.tag()) {
            go_on = visit_tag(*tag, scanner, visitor);
        }
        if (!go_on) return false;
    } while (!scanner.at_end() && (scanner.has_word() || scanner.at() < goal));
    return true;
}

// Reads the scanner's text to its end and hands what it meets to the visitor: punc(name),
// breaktime(value), word(word, where it begins in the text), which answers whether to go on, and
// spans: a copy of the visitor
// has enter(name, value) called, which answers too, and reads the span, unless it is_too_deep();
// then the visitor itself has leave(copy) called. False when one did not go on.
template <typename Visitor>
bool read_text(Scanner& scanner, Visitor& visitor) {
    const char* const text_end = scanner.end();
    const char* at = scanner.at();
    const char* end = at;
    for (;;) {
        end = find_word_end(end, text_end);
        const auto length = static_cast<std::size_t>(end - at);
        if (*end == ' ' && length <= WORD_LENGTH_MAX) {
            // The usual word: nothing is copied.
            if (length > 0 && !visitor.word({at, length}, at)) return false;
            at = end = end + (end[1] == ' ' ? 2 : 1);
            continue;
        }
        if (end == text_end) {
            if (length == 0) return true;
            if (length <= WORD_LENGTH_MAX) return visitor.word({at, length}, at);
        } else if (*end != ' ' && *end != '<') {
            ++end;  // it is of the word
            continue;
        }
        if (const std::string_view name = mark_at(at, text_end); !name.empty()) {
            visitor.punc(name);
            at = name.data() + name.size() + 1;
        } else {
            scanner.go_on_at(at);
            if (!read_by_steps(scanner, end, visitor)) return false;
            at = scanner.at();
        }
        end = at;
    }
}

// Reads a text from its beginning. False when the visitor did not go on.
template <typename Visitor>
bool read_text(std::string_view text, mem_stack_handle arena, Visitor& visitor) {
    char word[WORD_MAX_LEN];
    Scanner scanner(text.data(), text.data() + text.size(), word, 0, arena);
    scanner.clear_word();
    return read_text(scanner, visitor);
}

}  // namespace kavi::tn

#endif  // KAVI_TN_TEXT_READER_H

// Listing the items of a text; text_events.h explains it.

#include "text_events.h"

#include <cstring>
#include <optional>

#include "../common/runs.h"
#include "scanner.h"

namespace kavi::tn {

namespace {

const char* skip_blanks(const char* text) {
    while (*text == ' ') ++text;
    return text;
}

// The first position from `text` on where a word may end: a character without the bit 0x40, as are
// all below "@" and no letter, or `text_end`. `no_eight` is eights_end of the text.
inline const char* find_word_end(const char* text, const char* no_eight, const char* text_end) {
    for (; text < no_eight; text += 8) {
        const Eight below = ~eight_of(text) & EACH * '@';
        if (below != 0) return text + first_of(below);
    }
    while (text != text_end && (*text & '@') != 0) ++text;
    return text;
}

// The name in a "<punc=" tag at `text`. Empty when there is no such tag, or its name has other
// characters than letters: the Scanner reads it then. At `end` is a NUL or the "<" of a closing
// tag, so no name goes past it.
std::string_view mark_at(const char* text, const char* end) {
    constexpr std::string_view PREFIX = "<punc=";
    const auto size = static_cast<std::size_t>(end - text);
    if (size < PREFIX.size() || std::memcmp(text, PREFIX.data(), PREFIX.size()) != 0) return {};
    const char* name = text + PREFIX.size();
    const char* name_end = skip(LETTERS, name);
    if (*name_end != '>') return {};
    return {name, static_cast<std::size_t>(name_end - name)};
}

// One pass over one text.
class EventLister {
  public:
    // A NUL follows the text. The arena may be null.
    // cppcheck-suppress uninitMemberVar ; only the first n_spans_ of spans_ are read
    EventLister(std::string_view text, mem_stack_handle arena)
        : at_(text.data()), arena_(arena), end_(at_ + text.size()) {
        word_[0] = '\0';
    }
    EventLister(const EventLister&) = delete;
    EventLister& operator=(const EventLister&) = delete;

    // Lists the items from the cursor on, to the end of the text or until the list is full.
    void list(TextEvents& events) {
        events.clear();
        while (!events.is_full()) {
            if (at_ == end_) {
                if (n_spans_ == 0) return;
                leave_span(events);
            } else if (at_ < usual_from_ || word_[0] != '\0') {
                read_step(events);
            } else {
                read_usual(events);
            }
        }
    }

    bool at_end() const { return at_ == end_ && n_spans_ == 0; }

  private:
    struct Span {
        const char* after;  // the position after its closing tag
        const char* outer_end;
        bool keeps_last_word;  // of the scanner, outside the span
    };

    // Deeper spans are not read. Their words would never be stored: the chain of names has no room
    // for so many spans, and storing ends before them.
    static constexpr int SPANS_NESTED_MAX = 64;

    // Finds words between blanks, and marks.
    void read_usual(TextEvents& events) {
        const char* const text_end = end_;
        const char* at = skip_blanks(at_);
        const char* const no_eight = eights_end(at, text_end);
        const char* end = at;
        while (!events.is_full()) {
            end = find_word_end(end, no_eight, text_end);
            const auto length = static_cast<std::size_t>(end - at);
            if (*end == ' ' && length <= WORD_LENGTH_MAX) {
                events.add(TextEventKind::word, {at, length});
                at = end = skip_blanks(end + 1);
                continue;
            }
            if (length > WORD_LENGTH_MAX) {
                events.add(TextEventKind::word, {at, WORD_LENGTH_MAX});
                at += WORD_LENGTH_MAX;
                continue;
            }
            if (end == text_end) {
                if (length > 0) events.add(TextEventKind::word, {at, length});
                at = end;
                break;
            }
            if (const std::string_view name = mark_at(at, text_end); !name.empty()) {
                events.add(TextEventKind::punc, name);
                at = end = skip_blanks(name.data() + name.size() + 1);
                continue;
            }
            if (*end == '<' && begins_tag_name(end + (end[1] == '/' ? 2 : 1))) {
                usual_from_ = end + 1;
                break;
            }
            ++end;  // a character of the word
        }
        at_ = at;
    }

    // Reads one character or one tag by the Scanner.
    void read_step(TextEvents& events) {
        if (!scanner_) scanner_.emplace(at_, end_, word_, 0, arena_);
        scanner_->go_on_at(at_, end_);
        const bool completed = scanner_->step();
        at_ = scanner_->at();
        if (!completed) {
            if (const Tag* tag = scanner_->tag()) read_tag(*tag, events);
            return;
        }
        const std::string_view word = scanner_->word();
        const char* begin = scanner_->word_begin();
        if (std::memcmp(begin, word.data(), word.size()) == 0) {
            events.add(TextEventKind::word, {begin, word.size()});
        } else {
            events.add_put_together(word);
        }
        scanner_->clear_word();
    }

    void read_tag(const Tag& tag, TextEvents& events) {
        switch (tag.use) {
            case TagUse::punc: events.add(TextEventKind::punc, tag.value); break;
            case TagUse::breaktime: events.add(TextEventKind::breaktime, tag.value); break;
            case TagUse::span: {
                const char* inside_end = tag.value.data() + tag.value.size();
                const auto length = static_cast<std::size_t>(inside_end - tag.name.data());
                events.add(TextEventKind::span_begin, {tag.name.data(), length});
                if (n_spans_ == SPANS_NESTED_MAX) {
                    events.add(TextEventKind::span_end, {});
                    break;
                }
                spans_[n_spans_++] = {tag.after, end_, scanner_->keeps_last_word()};
                scanner_->keep_last_word(false);
                at_ = tag.content.data();
                end_ = at_ + tag.content.size();
                break;
            }
            default: break;
        }
    }

    // Goes on after the innermost span. A word that a tag at its end has left incomplete is
    // dropped.
    void leave_span(TextEvents& events) {
        const Span& span = spans_[--n_spans_];
        events.add(TextEventKind::span_end, {});
        scanner_->clear_word();
        scanner_->keep_last_word(span.keeps_last_word);
        at_ = span.after;
        end_ = span.outer_end;
    }

    // at_ and end_ are not adjacent: they would be loaded as a pair, which waits for the store of
    // at_.
    const char* at_;
    mem_stack_handle arena_;
    const char* end_;                   // of the innermost open span, or of the text
    char word_[WORD_MAX_LEN];           // the word that the Scanner is reading, or ""
    std::optional<Scanner> scanner_;    // made at the first step
    const char* usual_from_ = nullptr;  // the text before this is read step by step
    int n_spans_ = 0;
    Span spans_[SPANS_NESTED_MAX];  // the open spans, outermost first
};

}  // namespace

void TextEvents::add_put_together(std::string_view word) {
    std::memcpy(characters_end_, word.data(), word.size());
    add(TextEventKind::word, {characters_end_, word.size()});
    characters_end_ += word.size();
    const char* const limit = characters_ + CHARACTERS - WORD_LENGTH_MAX;
    if (characters_end_ > limit) full_at_ = end_;  // no room for another such word
}

bool read_text(std::string_view text, mem_stack_handle arena, TextEvents& events,
               EventsHandler* on_list, void* context) {
    EventLister lister(text, arena);
    do {
        lister.list(events);
        if (!on_list(context, events)) return false;
    } while (!lister.at_end());
    return true;
}

}  // namespace kavi::tn

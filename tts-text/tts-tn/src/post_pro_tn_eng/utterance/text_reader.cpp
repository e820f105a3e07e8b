#include "text_reader.h"

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

// The first place from `text` on where a word of tagged text may end: a character below "@", or
// the text's end.
inline const char* find_word_end(const char* text, const char* no_eight, const char* text_end) {
    for (; text < no_eight; text += 8) {
        const Eight below = ~eight_of(text) & EACH * '@';
        if (below != 0) return text + first_of(below);
    }
    while (text != text_end && (*text & '@') != 0) ++text;
    return text;
}

// The name in the "<punc=" tag at `text`, where no word has begun; empty when there is none, or not
// of letters alone. The scanner reads such tags too: this is less. At `end` is a NUL or the "<"
// of a closing tag, so no name goes past it.
std::string_view mark_at(const char* text, const char* end) {
    constexpr std::string_view PREFIX = "<punc=";
    const auto size = static_cast<std::size_t>(end - text);
    if (size < PREFIX.size() || std::memcmp(text, PREFIX.data(), PREFIX.size()) != 0) return {};
    const char* name = text + PREFIX.size();
    const char* name_end = skip(LETTERS, name);
    if (*name_end != '>') return {};
    return {name, static_cast<std::size_t>(name_end - name)};
}

// Reads one text.
class TextReader {
  public:
    // A NUL follows the text. The arena may be null.
    // cppcheck-suppress uninitMemberVar ; of the spans, those entered are set
    TextReader(std::string_view text, mem_stack_handle arena)
        : at_(text.data()), arena_(arena), end_(at_ + text.size()) {
        word_[0] = '\0';
    }
    TextReader(const TextReader&) = delete;
    TextReader& operator=(const TextReader&) = delete;

    // Lists what comes next: all of it, or as much as the list holds.
    void read(TextEvents& events) {
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
        const char* after;  // where the text goes on
        const char* outer_end;
        bool keeps_last_word;  // there
    };

    // Spans nested deeper are not read: their words are never stored, since a chain of so many
    // names is longer than any that can be.
    static constexpr int SPANS_NESTED_MAX = 64;

    // Words between blanks, and marks.
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
            ++end;  // it is of the word
        }
        at_ = at;
    }

    // One character or one tag of what is not usual.
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

    // A word that a tag at the end of the span has left incomplete is dropped.
    void leave_span(TextEvents& events) {
        const Span& span = spans_[--n_spans_];
        events.add(TextEventKind::span_end, {});
        scanner_->clear_word();
        scanner_->keep_last_word(span.keeps_last_word);
        at_ = span.after;
        end_ = span.outer_end;
    }

    // Not side by side: loaded as one, place and end would wait for the store of the place.
    const char* at_;
    mem_stack_handle arena_;
    const char* end_;                   // of the innermost open span, or of the text
    char word_[WORD_MAX_LEN];           // that the scanner is reading, or an empty one
    std::optional<Scanner> scanner_;    // from the first step on
    const char* usual_from_ = nullptr;  // up to there, the text is read step by step
    int n_spans_ = 0;
    Span spans_[SPANS_NESTED_MAX];  // the open ones
};

}  // namespace

void TextEvents::add_put_together(std::string_view word) {
    std::memcpy(characters_end_, word.data(), word.size());
    add(TextEventKind::word, {characters_end_, word.size()});
    characters_end_ += word.size();
    const char* const limit = characters_ + CHARACTERS - WORD_LENGTH_MAX;
    if (characters_end_ > limit) full_at_ = end_;  // no room for any other
}

bool read_text(std::string_view text, mem_stack_handle arena, TextEvents& events,
               EventsHandler* on_list, void* context) {
    TextReader reader(text, arena);
    do {
        reader.read(events);
        if (!on_list(context, events)) return false;
    } while (!reader.at_end());
    return true;
}

}  // namespace kavi::tn

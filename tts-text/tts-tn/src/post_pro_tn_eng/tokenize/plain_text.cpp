// Copying plain text to the output; plain_text.h explains it.

#include "plain_text.h"

#include <algorithm>

#include "../common/runs.h"
#include "../readers/words.h"
#include "mark_readings.h"
#include "section_cut.h"

namespace kavi::tn {

namespace {

std::string_view first_word(const char* text) {
    std::size_t length = 0;
    while (length < WORD_LENGTH_MAX && belongs_to(LETTERS, text[length])) ++length;
    return {text, length};
}

class PlainText {
  public:
    PlainText(const char* text_end, TagEnds& tag_ends, BoundedText& output)
        : text_end_(text_end), tag_ends_(tag_ends), output_(output) {}

    const char* read(const char* text, const ReadingObserver* observer) {
        for (;;) {
            while (*text == ' ') ++text;
            const char* end = text;
            if (is_letter(*text)) {
                end = word(text);
            } else if (*text != '\0' && !is_digit(*text)) {
                end = mark(text);
            }
            if (end == text || end == nullptr) return end;
            if (observer != nullptr) {
                observer->on_plain_text(observer->context,
                                        {text, static_cast<std::size_t>(end - text)},
                                        output_.length());
            }
            text = end;
        }
    }

  private:
    // Each appends the reading of what begins at `text` and returns its end. `text` when it is not
    // plain, null when the output is full.
    const char* word(const char* text) {
        const char* end = begins_plain_word(text) ? plain_words(text) : text;
        return end != text ? end : other_word(text);
    }

    // Copies a run of words to the output while it searches the end of the run: words in lower case
    // or with a first capital, and single blanks between them. A last word that goes on with
    // another letter, such as "iPhone" or a word beyond the limit, is taken back. Returns `text`
    // when no word is left.
    const char* plain_words(const char* text) {
        constexpr std::ptrdiff_t LONGEST = WORD_LENGTH_MAX;
        const std::ptrdiff_t room = std::min(LONGEST, output_.room() - 1);
        const std::ptrdiff_t limit = std::min(text_end_ - text, room);
        char* const target = output_.end();
        std::ptrdiff_t length = 0;
        do {
            target[length] = text[length];
            length = copy_small_words(text, length + 1, limit, target);
        } while (text[length - 1] == ' ' && begins_plain_word(text + length));
        if (is_letter(text[length]) || length > limit) {
            while (length > 0 && is_letter(text[length - 1])) --length;
        }
        if (length == 0) {
            *target = '\0';
            return text;
        }
        if (text[length - 1] == ' ') --length;
        output_.extend_spaced(static_cast<std::size_t>(length));
        return text + length;
    }

    const char* other_word(const char* text) {
        const std::string_view word = first_word(text);
        switch (word_kind(word)) {
            case WordKind::telephone_label:
            case WordKind::month: return text;
            case WordKind::capitals: ask_lexicon(word); break;
            default: break;
        }
        return output_.append_spaced(word) ? text + word.size() : nullptr;
    }

    const char* mark(const char* text) {
        const MarkReading* row = find_mark(*text);
        if (row == nullptr) return text + 1;
        const MarkWords words = words_of(*row, false, is_digit(text[1]));
        if (words == READER) {
            const std::string_view tag = first_section(text, tag_ends_);
            if (tag.size() == 1) return text;
            return output_.append_spaced(tag) ? text + tag.size() : nullptr;
        }
        return append_mark(words, row->spaced, output_) ? text + 1 : nullptr;
    }

    const char* text_end_;
    TagEnds& tag_ends_;
    BoundedText& output_;
};

}  // namespace

const char* read_plain_text(const char* text, const char* text_end, TagEnds& tag_ends,
                            BoundedText& output, const ReadingObserver* observer) {
    return PlainText(text_end, tag_ends, output).read(text, observer);
}

}  // namespace kavi::tn

#include "plain_text.h"

#include "../common/runs.h"
#include "../markup/markup_tags.h"
#include "../readers/months.h"
#include "../readers/readers.h"
#include "../readers/words.h"
#include "mark_readings.h"

namespace kavi::tn {

namespace {

std::string_view first_word(const char* text) {
    std::size_t length = 0;
    while (length < WORD_LENGTH_MAX && belongs_to(LETTERS, text[length])) ++length;
    return {text, length};
}

// Whether a number may stand so near after a word that it is read with regard to it: there is at
// most one section between them.
bool number_may_follow(const char* after) {
    return is_digit(after[0]) || (after[0] != '\0' && is_digit(after[1])) || after[0] == '<';
}

// The end of the words from `text` on that are plain, in small letters but for a first capital, and
// have one blank between each two: they are spoken as they stand. `text` itself when the first word
// is none of those.
const char* end_of_plain_words(const char* text, const char* text_end) {
    const auto room = static_cast<std::size_t>(text_end - text);
    const char* const limit = room > WORD_LENGTH_MAX ? text + WORD_LENGTH_MAX : text_end;
    const char* end = text;
    do {
        if (!begins_plain_word(end)) break;
        end = skip_small_words(end + 1, limit);
    } while (end[-1] == ' ');
    if (is_letter(*end)) {
        while (end != text && is_letter(end[-1])) --end;  // the last word is another
    }
    while (end != text && end[-1] == ' ') --end;
    return end;
}

}  // namespace

const char* PlainText::read(const char* text, ReadingObserver* observer) {
    for (;;) {
        const char* end = text;
        const int target_at = observer != nullptr ? output_.length() : 0;
        if (is_letter(*text)) {
            end = words(text);
        } else if (*text == ' ' || *text == '\n') {
            do ++text;
            while (*text == ' ' || *text == '\n');
            continue;
        } else if (*text != '\0' && !is_digit(*text)) {
            end = mark(text);
        }
        if (end == text || end == nullptr) return end;
        if (observer != nullptr) {
            observer->on_plain_text({text, static_cast<std::size_t>(end - text)}, target_at);
        }
        text = end;
    }
}

const char* PlainText::words(const char* text) {
    const char* end = end_of_plain_words(text, text_end_);
    if (end == text) return other_word(text, first_word(text));
    const std::string_view all(text, static_cast<std::size_t>(end - text));
    if (!output_.has_room(all.size() + 1)) return plain_words(text);
    output_.append_spaced(all);
    return end;
}

// Word by word, as far as there is room: not to the end.
const char* PlainText::plain_words(const char* text) {
    for (;;) {
        const std::string_view word = first_word(text);
        if (!output_.append_spaced(word)) return nullptr;
        text += word.size() + 1;
    }
}

const char* PlainText::other_word(const char* text, std::string_view word) {
    const char* end = text + word.size();
    switch (word_kind(word)) {
        case WordKind::telephone_label:
            if (*end == '.') return text;
            return output_.append("telephone ") ? end : nullptr;
        case WordKind::month:
            if (number_may_follow(end)) return text;
            return output_.append_spaced(month_name(word)) ? end : nullptr;
        case WordKind::capitals: ask_lexicon(word); break;
        default: break;
    }
    return output_.append_spaced(word) ? end : nullptr;
}

const char* PlainText::mark(const char* text) {
    const MarkReading* row = find_mark(*text);
    if (row == nullptr) return text + 1;
    const MarkWords words = words_of(*row, false, is_digit(text[1]));
    if (words == READER) {
        switch (row->mark) {
            case '<': return smaller(text);
            case '\'': return apostrophe(text);
            default: return text;
        }
    }
    const MarkText& reading = text_of(words);
    const bool fits = row->spaced ? output_.append_spaced(reading)
                                  : output_.append_padded(reading.text, reading.length);
    return fits ? text + 1 : nullptr;
}

const char* PlainText::smaller(const char* text) {
    const std::string_view tag = first_section(text, tag_ends_);
    if (tag.size() > 1) return output_.append_spaced(tag) ? text + tag.size() : nullptr;
    const bool is_spoken = text[1] == '\0' || begins_with(text + 1, "punc");
    const bool greater_follows = !is_spoken && tokens_.greater_follows(text + 1);
    return output_.append(text_of(smaller_words(is_spoken, greater_follows))) ? text + 1 : nullptr;
}

const char* PlainText::apostrophe(const char* text) {
    const std::string_view letters = first_word(text + 1);
    const std::string_view word = find_contraction(letters);
    if (word.empty()) return text + 1;
    return output_.append_spaced(word) ? text + 1 + letters.size() : nullptr;
}

}  // namespace kavi::tn

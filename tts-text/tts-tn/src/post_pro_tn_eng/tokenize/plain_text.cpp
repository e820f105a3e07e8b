#include "plain_text.h"

#include "../common/ascii.h"
#include "../common/runs.h"
#include "../readers/months.h"
#include "mark_readings.h"
#include "section_queue.h"

namespace kavi::tn {

namespace {

// A word with a capital: none in capitals throughout, no month, no label of a telephone number.
bool is_plain_name(std::string_view word) {
    const bool may_be_in_capitals = word.size() == 1 || is_upper(word[1]);
    return !may_be_in_capitals && word != "Tel" && month_name(word) == nullptr;
}

// The end of the plain words at `text` that have one blank between each two: they are spoken as
// they stand.
const char* end_of_words(const char* text, const char* text_end) {
    const char* end = text;
    for (const char* word = text;; word = end + 1) {
        const char* word_end = skip_letters(word, text_end);
        const auto length = static_cast<std::size_t>(word_end - word);
        if (length == 0 || length > SECTION_TEXT_MAX) return end;
        if (is_upper(*word) && !is_plain_name({word, length})) return end;
        end = word_end;
        if (*end != ' ') return end;
    }
}

// A piece of plain text and how it reads; of no length when the text is not plain.
struct PlainPiece {
    std::size_t length;
    std::string_view reading;
    bool spaced;  // a blank follows the reading
};

PlainPiece first_piece(const char* text, const char* text_end, ForwardFinder& tag_ends) {
    if (belongs_to(LETTERS, *text)) {
        const auto length = static_cast<std::size_t>(end_of_words(text, text_end) - text);
        return {length, {text, length}, true};
    }
    if (*text == '<') {
        const std::size_t length = section_length(text, tag_ends);
        return {length > 1 ? length : 0, {text, length}, true};
    }
    if (*text == '\0' || is_digit(*text) || !is_plain_mark(*text)) return {};
    const MarkReading* row = find_mark(*text);
    return {1, row != nullptr ? row->otherwise : "", false};
}

}  // namespace

bool is_plain_word(std::string_view section) {
    if (section.empty()) return false;  // a host may queue one
    return is_lower(section[0]) || (is_upper(section[0]) && is_plain_name(section));
}

const char* read_plain_text(const char* text, const char* text_end, ForwardFinder& tag_ends,
                            BoundedText& output) {
    for (;;) {
        while (*text == ' ') ++text;
        const PlainPiece piece = first_piece(text, text_end, tag_ends);
        if (piece.length == 0 || !output.has_room(piece.reading.size() + 1)) return text;
        output.append(piece.reading);
        if (piece.spaced) output.append(" ");
        text += piece.length;
    }
}

}  // namespace kavi::tn

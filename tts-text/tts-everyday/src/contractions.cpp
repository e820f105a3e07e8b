// Apostrophes, straight and curly.

#include "rules.h"

namespace kavi::everyday {

namespace {

// The words as a sentence would begin with them.
void capitalise(std::string& words) {
    if (is_lower(words[0])) words[0] = static_cast<char>(words[0] - 'a' + 'A');
}

// The word with straight apostrophes in it, in lower case, and its length as written.
std::string word_with_apostrophes(const Cursor& cursor, std::size_t& length) {
    std::string word;
    constexpr std::size_t LONGEST = 64;  // so that a chain of apostrophes is not read from each
    length = 0;
    while (length < LONGEST) {
        const char c = cursor.peek(length);
        if (is_letter(c)) {
            word += to_lower(c);
            ++length;
            continue;
        }
        const std::size_t mark = cursor.apostrophe(length);
        if (mark == 0 || (!is_letter(cursor.peek(length + mark)) && word != "'n")) break;
        word += '\'';
        length += mark;
    }
    return word;
}

bool is_participle(std::string_view word) {
    if (find(PARTICIPLES, word) != nullptr) return true;
    const bool ends_in_ed = word.size() > 4 && word.substr(word.size() - 2) == "ed";
    return ends_in_ed && word[word.size() - 3] != 'e' && word != "embed";
}

// The word for "'d" by the verb at offset `ahead`; null where both could be meant: "I'd read".
const char* had_or_would(const Cursor& cursor, std::size_t ahead) {
    const auto next_word = [&](std::size_t at) {
        return cursor.peek(at) == ' ' ? cursor.letters(at + 1) : std::string_view();
    };
    std::string_view next = next_word(ahead);
    if (find(ADVERBS_AFTER_D, next) != nullptr) next = next_word(ahead + 1 + next.size());
    if (next.empty()) return nullptr;
    if (is_participle(next)) return "had";
    return find(BASE_FORMS, next) != nullptr ? "would" : nullptr;
}

// "it's been", "she's got"
bool is_has(const Cursor& cursor, std::size_t ahead) {
    if (cursor.peek(ahead) != ' ') return false;
    const std::string_view next = cursor.letters(ahead + 1);
    return next == "been" || next == "got" || next == "had" || next == "become";
}

// "an ‘s’": after the quotation mark, of `mark` bytes, this is a letter and no verb, as the engine
// has it.
void read_quoted_letter(const Cursor& cursor, std::size_t mark, Found& found) {
    const std::size_t end = mark + 1 + cursor.apostrophe(mark + 1);
    const char c = cursor.peek(mark);
    const bool is_one = (c == 's' || c == 't' || c == 'm') && end > mark + 1 &&
                        !cursor.is_joined(end) && !cursor.is_joined_before();
    if (!is_one) return;
    found.length = end;
    found.words = cursor.part(mark, 1);
}

// "'ve" after another contraction: "couldn't've".
std::size_t have_length(const Cursor& cursor, std::size_t ahead) {
    const std::size_t mark = cursor.apostrophe(ahead);
    return mark > 0 && cursor.letters(ahead + mark) == "ve" ? mark + 2 : 0;
}

// "Isn't it", "why don't they", "Won't Ann come": the verb before its subject, where "is not it" is
// no English. "Don't go" is no question.
bool is_inverted(const Cursor& cursor, std::string_view word, std::size_t length) {
    constexpr std::string_view SUBJECTS[] = {"I", "he", "it", "she", "there", "they", "we", "you"};
    if (word.size() < 4 || word.substr(word.size() - 3) != "n't") return false;
    if (is_upper(cursor.peek()) && is_lower(cursor.peek(1)) && word != "don't" && word != "can't")
        return true;
    const std::string_view next = cursor.peek(length) == ' ' ? cursor.letters(length + 1) : "";
    return std::find(std::begin(SUBJECTS), std::end(SUBJECTS), next) != std::end(SUBJECTS);
}

}  // namespace

void read_contraction(const Cursor& cursor, Found& found) {
    const std::string_view stem = cursor.letters();
    const std::size_t mark = cursor.apostrophe(stem.size());
    if (mark == 0) return;
    std::size_t length = 0;
    const std::string word = word_with_apostrophes(cursor, length);
    if (is_inverted(cursor, word, length)) {
        found.length = length;
        found.words = stem;
        found.words += cursor.peek(length - 1);  // "isnt", one word
        return;
    }
    if (const Row* row = find(CONTRACTIONS, word)) {
        found.length = length;
        found.words = row->spoken();
        if (is_upper(cursor.peek())) capitalise(found.words);
        return;
    }
    if (stem.empty() && is_digit(cursor.before()) && cursor.letters(mark) == "s") {
        found.length = mark + 1;  // silent: "£5's worth"
        return;
    }
    if (stem.empty()) return read_quoted_letter(cursor, mark, found);
    const std::string_view ending = cursor.letters(stem.size() + mark);
    if (ending.empty()) {  // "the boys' bikes"
        if (to_lower(stem.back()) != 's') return;
        found.length = stem.size() + mark;
        found.words = stem;
        return;
    }
    const std::string lower = in_lower_case(ending);
    found.length = stem.size() + mark + ending.size();
    if (lower == "t" && stem.size() > 1 && to_lower(stem.back()) == 'n') {
        found.words = std::string(stem.substr(0, stem.size() - 1)) + " not";
        const std::size_t have = have_length(cursor, found.length);
        if (have > 0) say("have", found.words);
        found.length += have;
        return;
    }
    found.words = stem;
    if (lower == "d") {
        const std::size_t have = have_length(cursor, found.length);
        const char* verb = have > 0 ? "would have" : had_or_would(cursor, found.length);
        found.length += have;
        if (verb == nullptr) {
            found.length = 0;
        } else {
            say(verb, found.words);
        }
    } else if (const Row* row = find(CONTRACTION_ENDINGS, lower)) {
        say(row->spoken(), found.words);
    } else if (lower == "s" && find_lower(BEFORE_IS, stem) != nullptr) {
        say(is_has(cursor, found.length) ? "has" : "is", found.words);
    } else {
        found.words += ending;  // "Tom's", "O'Brien"
        const std::size_t second = cursor.apostrophe(found.length);
        if (second > 0 && cursor.letters(found.length + second) == "s") {  // "O'Brien's"
            found.words += 's';
            found.length += second + 1;
        }
    }
}

}  // namespace kavi::everyday

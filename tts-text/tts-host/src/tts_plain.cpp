#include "tts_plain.h"

#include <algorithm>
#include <array>

#include "tts_names.h"

namespace kavi {

namespace {

constexpr std::string_view ASCII_MARKS = ".,;:!?\"'()[]{}-/";

// Typographic dashes, quotation marks and the ellipsis: the last bytes of U+2010 to U+203A, and of
// U+00AB and U+00BB.
constexpr std::string_view GENERAL = "\xe2\x80";
constexpr std::string_view GENERAL_MARKS =
    "\x90\x91\x92\x93\x94\x95\x98\x99\x9a\x9b\x9c\x9d\x9e\x9f\xa6\xb9\xba";
constexpr std::string_view LATIN = "\xc2";
constexpr std::string_view LATIN_MARKS = "\xab\xbb";

bool has(std::string_view characters, char c) {
    return characters.find(c) != std::string_view::npos;
}

// For each character, whether a mark may begin with it.
constexpr std::array<bool, 256> begin_marks() {
    std::array<bool, 256> begins{};
    for (const char c : ASCII_MARKS) begins[static_cast<unsigned char>(c)] = true;
    begins[static_cast<unsigned char>(GENERAL[0])] = true;
    begins[static_cast<unsigned char>(LATIN[0])] = true;
    return begins;
}
constexpr std::array<bool, 256> BEGINS_MARK = begin_marks();

// The length of the punctuation mark that `text`, which is not empty, begins with; 0 for none.
std::size_t mark_length(std::string_view text) {
    if (!BEGINS_MARK[static_cast<unsigned char>(text[0])]) return 0;
    const auto begins = [&](std::string_view first, std::string_view last) {
        return text.size() > first.size() && text.substr(0, first.size()) == first &&
               has(last, text[first.size()]);
    };
    if (begins(GENERAL, GENERAL_MARKS)) return GENERAL.size() + 1;
    if (begins(LATIN, LATIN_MARKS)) return LATIN.size() + 1;
    return static_cast<unsigned char>(text[0]) < 0x80 ? 1 : 0;
}

bool ends_with_mark(std::string_view text) {
    for (std::size_t size = 1; size <= std::min(text.size(), GENERAL.size() + 1); ++size) {
        if (mark_length(text.substr(text.size() - size)) == size) return true;
    }
    return false;
}

bool is_control(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
}

bool is_blank(char c) {
    return c == ' ' || is_control(c);
}

bool begins_tag(std::string_view text) {
    if (text[0] != '<' || text.size() == 1) return false;
    const auto letter = static_cast<unsigned char>(text[1] | 0x20);
    return text[1] == '/' || (letter >= 'a' && letter <= 'z');
}

// The offset of the blanks before a sentence, which no earlier sentence has written. A sentence of
// nothing but blanks does not look back, so that many in a row take linear time.
std::size_t begin_of_blanks(std::string_view text, const TextRange& sentence) {
    const std::string_view source = text.substr(sentence.offset, sentence.length);
    std::size_t begin = sentence.offset;
    if (std::all_of(source.begin(), source.end(), is_blank)) return begin;
    while (begin > 0 && is_blank(text[begin - 1])) --begin;
    return begin;
}

}  // namespace

void PlainForm::read(const HostSentence& sentence, std::string_view text, std::size_t text_begin) {
    const auto n_records = static_cast<std::size_t>(sentence.n_records);
    const WordPlace* const places = sentence.places.words();
    const auto in_text = [=](std::size_t offset) { return offset - std::min(offset, text_begin); };
    const std::size_t whole_end = in_text(sentence.source.offset + sentence.source.length);
    const std::size_t whole_begin = in_text(sentence.source.offset);
    const TextRange whole = {whole_begin, whole_end - whole_begin};
    all_.clear();
    if (after_.size() < n_records) after_.resize(n_records);
    const std::size_t begin_of_form = begin_of_blanks(text, whole);
    std::size_t at = begin_of_form;
    for (std::size_t i = 0; i < n_records; ++i) {
        if (i > 0) {
            at = std::max(at, in_text(places[i].source.offset + places[i].source.length));
        }
        const bool is_last = i + 1 == n_records;
        const std::size_t next = is_last ? whole_end : in_text(places[i + 1].source.offset);
        if (i > 0) {
            const std::string_view word = word_of(sentence.records[i]);
            if (next == at + 1 && text[at] == ' ' && !is_last) {  // as after most words
                all_.add(word, ' ');
                after_[i] = {all_.size() - 1, all_.size()};
                at = next;
                continue;
            }
            all_.add(word);
        }
        const std::size_t begin = all_.size();
        if (next > at) {
            add_gap(text.substr(at, next - at));
            at = next;
        }
        if (is_last) {
            all_.cut_to(std::max(begin, all().find_last_not_of(' ') + 1));
        } else if (i > 0 && all_.size() == begin) {
            all_.add(' ');
        }
        if (i == 0) end_before(text.substr(0, begin_of_form), is_last);
        after_[i] = {begin, all_.size()};
    }
    if (all_.size() > 0) is_after_word_ = after(n_records - 1).empty();
}

// Completes what was added for the text before the first word. `text` precedes that.
void PlainForm::end_before(std::string_view text, bool is_last) {
    if (text.empty()) {
        all_.cut_front(std::min(all().find_first_not_of(' '), all_.size()));
    } else if (all_.size() == 0 && !is_last && (is_after_word_ || !ends_with_mark(text))) {
        all_.add(' ');
    }
}

// Appends the punctuation and blanks of the text between two words.
void PlainForm::add_gap(std::string_view gap) {
    std::size_t n_blanks = 0;  // in the current run of characters that are no marks
    bool has_other = false;    // that run has other characters
    bool may_have_tags = true;
    const auto end_run = [&] {
        if (has_other) n_blanks = std::min<std::size_t>(n_blanks, 1);
        for (; n_blanks > 0; --n_blanks) all_.add(' ');
        has_other = false;
    };
    while (!gap.empty()) {
        std::size_t length = mark_length(gap);
        if (length > 0) {
            end_run();
            all_.add(gap.substr(0, length));
        } else {
            length = 1;
            if (is_blank(gap[0])) ++n_blanks;
            has_other = has_other || gap[0] != ' ';
            if (may_have_tags && begins_tag(gap)) {
                const std::size_t close = gap.find('>');
                may_have_tags = close != std::string_view::npos;
                if (may_have_tags) length = close + 1;
            }
        }
        gap.remove_prefix(length);
    }
    end_run();
}

}  // namespace kavi

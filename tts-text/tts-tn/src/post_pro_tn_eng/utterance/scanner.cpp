// Scanning tagged text, one character or tag at a time.

#include "scanner.h"

#include <algorithm>
#include <cassert>
#include <cstring>

#include "../markup/markup_tags.h"

namespace kavi {

namespace tn {

namespace {

void copy(std::string_view text, char* target) {
    std::copy(text.begin(), text.end(), target);
    target[text.size()] = '\0';
}

void copy_parts(const Tag& tag, char* sz_tag, char* sz_value, char* sz_target) {
    copy(tag.name, sz_tag);
    copy(tag.value, sz_value);
    copy(tag.content, sz_target);
}

// Copies what would be the name and the value of a tag, up to a ">" or the end of the text. The
// name is cut at TAG_NAME_MAX characters.
void copy_name_and_value(const char* text, char* sz_tag, char* sz_value) {
    std::size_t length = 0;
    for (; *text != '\0' && *text != '>' && *text != '='; ++text) {
        if (length < TAG_NAME_MAX) sz_tag[length++] = *text;
    }
    sz_tag[length] = '\0';
    if (*text == '=') ++text;
    while (*text != '\0' && *text != '>') *sz_value++ = *text++;
    *sz_value = '\0';
}

}  // namespace

// cppcheck-suppress uninitMemberVar ; tag_ is read only after a step that set it
Scanner::Scanner(const char* at, const char* end, char* word, int word_length,
                 mem_stack_handle arena)
    : at_(at), end_(end), word_(word), word_length_(word_length), arena_(arena) {}

bool Scanner::step() {
    met_tag_ = false;
    const bool completed = advance();
    if (completed) word_[word_length_] = '\0';
    return completed;
}

// Reads one character or tag. True when the word is complete.
bool Scanner::advance() {
    if (word_length_ == static_cast<int>(WORD_LENGTH_MAX)) return true;
    const char c = *at_;
    if (c == ' ') {
        ++at_;
        return has_word();
    }
    const bool last = at_ + 1 == end_;
    if (c == '<' && !last) {
        const Met met = meet_tag();
        if (met != Met::no_tag) return met == Met::word_end;
    }
    if (word_length_ == 0) word_begin_ = at_;
    word_[word_length_++] = c;
    ++at_;
    return last;
}

// Reads the tag at a "<" that is not the last character. A closing tag, or a tag that the builder
// uses, first completes a word directly before it and is read by the next step. Other tags are
// skipped inside a word: "ca<sil=5>ts" is one word.
Scanner::Met Scanner::meet_tag() {
    const bool is_closing = at_[1] == '/';
    if (tag_at_ != at_) {  // else read by the step before, which completed the word
        if (!read_opening(at_ + (is_closing ? 2 : 1), end_, tag_ends_, tag_)) return Met::no_tag;
        tag_at_ = at_;
    }
    if (has_word() && (is_closing || tag_.use != TagUse::none)) return Met::word_end;
    met_tag_ = !is_closing;  // a closing tag outside its span is skipped
    if (met_tag_ && !paired_tags_) paired_tags_.emplace(arena_);
    const bool closed = !met_tag_ || read_content(tag_, end_, *paired_tags_);
    at_ = tag_.after;
    if (!closed && tag_.use != TagUse::span) keeps_last_word_ = true;
    return keeps_last_word_ && has_word() && at_ == end_ ? Met::word_end : Met::tag;
}

namespace {

// Scanner::keeps_last_word after a scan from `text` to `at`.
bool keeps_last_word(const char* text, const char* at, const char* end) {
    char word[WORD_MAX_LEN];
    word[0] = '\0';
    Scanner scanner(text, end, word, 0, nullptr);
    while (scanner.at() < at) {
        if (scanner.step()) scanner.clear_word();
    }
    return scanner.keeps_last_word();
}

}  // namespace

}  // namespace tn

char* PostProTnEng::parse_tag(char* sz_text, char* sz_tag, char* sz_value, char* sz_target) {
    assert(*sz_text == '<');
    tn::TagEnds tag_ends;
    tn::PairedTags paired_tags(nullptr);
    tn::Tag tag = {};
    tn::copy_name_and_value(sz_text + 1, sz_tag, sz_value);
    sz_target[0] = '\0';
    const char* const end = sz_text + std::strlen(sz_text);
    if (!tn::read_opening(sz_text + 1, end, tag_ends, tag)) return nullptr;
    tn::read_content(tag, end, paired_tags);
    tn::copy(tag.content, sz_target);
    return sz_text + (tag.after - sz_text);
}

bool PostProTnEng::filter_text(char* p_word_text, char* sz_char_buf, char* sz_tag, char* sz_value,
                               char* sz_target, int& i, int& j, int& mark) {
    const char* const end = p_word_text + i + std::strlen(p_word_text + i);
    tn::Scanner scanner(p_word_text + i, end, sz_char_buf, j, nullptr);
    mark = scanner.step() ? 1 : 0;
    if (const tn::Tag* tag = scanner.tag()) {
        tn::copy_parts(*tag, sz_tag, sz_value, sz_target);
        // A single step does not know whether an earlier one has skipped an unclosed tag.
        if (mark == 0 && scanner.at() == end && scanner.has_word() &&
            tn::keeps_last_word(p_word_text, p_word_text + i, end)) {
            sz_char_buf[j] = '\0';
            mark = 1;
        }
    }
    i = static_cast<int>(scanner.at() - p_word_text);
    j = scanner.word_length();
    return true;
}

}  // namespace kavi

// The pre-pass: raw text to one sentence, with markup that is well formed by itself.

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "../common/ascii.h"
#include "../common/bounded_text.h"
#include "../common/forward_finder.h"
#include "../markup/markup_tags.h"
#include "../common/runs.h"
#include "PostProcTN.h"
#include "abbreviation.h"
#include "post_pro_tn_eng.h"

namespace kavi {

namespace {

using namespace tn;

// A sentence that has grown beyond this is cut, so that what closes it still finds room.
constexpr int SENTENCE_MAX = SZ_TEXT_MAX_LEN - 10;

constexpr bool is_blank(char c) {
    return c == ' ' || c == '\t';
}

// One scan of a source text, from its start to the end of its first sentence.
class SentenceCutter {
  public:
    SentenceCutter(char* source, char* target)
        : next_(source), stretch_(source), target_(target, SZ_TEXT_MAX_LEN) {
        tags_.begin_arr_len = 0;
    }

    // Writes the sentence and closes its spans. False when malformed markup stops the pass.
    bool cut() {
        drop_leading_blank();
        while (*next_ != '\0' && stop_ == 0 && !sentence_full_) {
            if (target_.length() > SENTENCE_MAX) break;
            if (!take_next()) return false;
        }
        return close_open_spans();
    }

    // Appends the open tags and the rest of the source to the text handed back.
    void hand_back(char* sz_next_text) {
        while (is_blank(*next_) || *next_ == '\'' || *next_ == '"') ++next_;
        while (*next_ == '\r' || *next_ == '\n') ++next_;
        if (*next_ == '\0') return;
        BoundedText next_text(sz_next_text, SZ_TEXT_MAX_LEN);
        for (int i = 0; i < tags_.begin_arr_len; ++i) {
            if (!next_text.append(tags_.begin_tag_arr[i])) return;
        }
        next_text.append(next_);
    }

  private:
    // ---- characters ----

    bool take_next() {
        const char c = *next_;
        switch (c) {
            case '.': full_stop(); return true;
            case '<': return markup();
            case ':':
            case ',': mark(!between_digits()); return true;
            case '?':
            case ';':
            case '!': mark(true); return true;
            default: run(); return true;
        }
    }

    void drop_leading_blank() {
        if (!is_blank(*next_)) return;
        previous_ = *next_;
        ++next_;
    }

    bool between_digits() const { return is_digit(previous_) && is_digit(next_[1]); }

    void mark(bool ends_sentence) {
        previous_ = *next_;
        target_.append({next_, 1});
        ++next_;
        if (ends_sentence) stop_ = 1;
    }

    // Copies characters up to the next that needs a decision, or until the sentence is full. A run
    // of blanks that ends the source loses its last.
    void run() {
        const char* begin = next_;
        const std::ptrdiff_t room = SENTENCE_MAX + 1 - target_.length();
        const std::ptrdiff_t length = std::min(skip(COPIED, begin) - begin, room);
        next_ += length;
        target_.append({begin, static_cast<std::size_t>(length)});
        const char before_last = length > 1 ? next_[-2] : previous_;
        previous_ = next_[-1];
        if (*next_ == '\0' && is_blank(previous_) && before_last == ' ') target_.cut(1);
    }

    void full_stop() {
        const bool decimal_point = between_digits();
        previous_ = '.';
        target_.append(".");
        if (decimal_point) {
            stretch_ = ++next_;
            return;
        }
        if (char* resumed = expand_abbreviation()) {
            next_ = stretch_ = resumed;
            return;
        }
        stop_ = 1;
        target_.append(".");
        ++next_;
    }

    // A full stop inside a tag that was passed hides the abbreviations behind it.
    char* expand_abbreviation() {
        const char* first_dot = std::strchr(stretch_, '.');
        const bool hidden = first_dot != next_;
        return abbreviations_.expand(stretch_, hidden ? stretch_ : next_, target_, stop_);
    }

    // ---- markup ----

    // False when the markup is malformed and the pass must stop.
    bool markup() {
        const MarkupTag* tag = find_markup_tag(next_);
        const char* end = tag != nullptr ? closing_.find(next_, '>') : nullptr;
        if (end == nullptr) {
            mark(false);
            return true;
        }
        const std::string_view text(next_, static_cast<std::size_t>(end + 1 - next_));
        switch (tag->kind) {
            case TagKind::removed: next_ += text.size(); return true;
            case TagKind::kept: keep(text); return true;
            case TagKind::span_open: return open_span(text);
            default: return close_span(*tag);
        }
    }

    void keep(std::string_view tag) {
        if (tag.size() > MARKUP_TAG_MAX) {
            mark(false);
        } else {
            copy_tag(tag);
        }
    }

    // A tag that has no room any more begins the next sentence.
    bool copy_tag(std::string_view tag) {
        sentence_full_ = !target_.append(tag);
        if (!sentence_full_) next_ += tag.size();
        return !sentence_full_;
    }

    bool open_span(std::string_view tag) {
        if (tags_.begin_arr_len == OPEN_TAGS_MAX) return false;
        if (tag.size() > SAVED_TAG_MAX) {
            target_.append(tag.substr(0, SAVED_TAG_MAX + 1));  // as far as the entry took it
            return false;
        }
        if (!copy_tag(tag)) return true;
        char* entry = tags_.begin_tag_arr[tags_.begin_arr_len++];
        std::memcpy(entry, tag.data(), tag.size());
        entry[tag.size()] = '\0';
        return true;
    }

    bool close_span(const MarkupTag& tag) {
        if (tags_.begin_arr_len == 0) return false;
        char* innermost = tags_.begin_tag_arr[tags_.begin_arr_len - 1];
        if (!begins_with(innermost, tag.partner) || !target_.append(tag.prefix)) return false;
        next_ += tag.prefix.size();
        innermost[0] = '\0';
        --tags_.begin_arr_len;
        return true;
    }

    bool close_open_spans() {
        for (int i = tags_.begin_arr_len - 1; i >= 0; --i) {
            if (!target_.append(find_markup_tag(tags_.begin_tag_arr[i])->partner)) return false;
        }
        return true;
    }

    char* next_;     // the read position
    char* stretch_;  // where the next abbreviation search begins
    BoundedText target_;
    char previous_ = 0;  // the last character that the scan recorded; tags do not count
    char stop_ = 0;      // the sentence has ended
    bool sentence_full_ = false;
    SsmlTagArr tags_;  // of its entries, those below begin_arr_len hold texts
    AbbreviationSearch abbreviations_;
    ForwardFinder closing_;
};

}  // namespace

int PostProTnEng::eng_text_normalize(char* sz_source_text, char* sz_target_text,
                                     char* sz_next_text) {
    SentenceCutter cutter(sz_source_text, sz_target_text);
    if (cutter.cut()) cutter.hand_back(sz_next_text);
    return 0;
}

}  // namespace kavi

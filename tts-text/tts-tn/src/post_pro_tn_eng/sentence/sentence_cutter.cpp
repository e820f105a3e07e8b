// Cutting a sentence off raw text, in one scan.

#include "sentence_cutter.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "../common/ascii.h"
#include "../common/bounded_text.h"
#include "../common/limits.h"
#include "../common/runs.h"
#include "../markup/markup_tags.h"
#include "../markup/tag_ends.h"
#include "post_pro_tn_eng.h"

namespace kavi {

namespace tn {

namespace {

// Whether the character at `mark` is a ".", "," or ":" between digits. There is one before it.
constexpr bool joins_digits(const char* mark) {
    const bool may_join = *mark == '.' || *mark == ',' || *mark == ':';
    return may_join && is_digit(mark[-1]) && is_digit(mark[1]);
}

// A longer sentence is cut. Closing tags that do not fit in the rest of the buffer count as
// malformed markup.
constexpr int FULL_SENTENCE = SZ_TEXT_MAX_LEN - 10;

constexpr bool is_blank(char c) {
    return c == ' ' || c == '\t';
}

// One scan of a source text, from its start to the end of its first sentence.
class SentenceCutter {
  public:
    SentenceCutter(std::string_view source, char* target, AbbreviationSearch& abbreviations,
                   const CutObserver* observer, SsmlTagArr& tags)
        : next_(source.data()),
          source_end_(next_ + source.size()),
          stretch_(next_),
          target_(target, SZ_TEXT_MAX_LEN),
          abbreviations_(abbreviations),
          observer_(observer),
          tags_(tags) {
        tags_.begin_arr_len = 0;
    }

    // Writes the sentence and closes its spans. False when malformed markup ends the scan.
    bool cut() {
        drop_leading_blank();
        while (*next_ != '\0' && !stop_ && target_.length() <= FULL_SENTENCE) {
            if (!take_next()) return false;
        }
        return close_open_spans();
    }

    // After cut(): the rest of the source, from where the next sentence begins. Blanks, quotes and
    // then line ends before it are skipped.
    std::string_view rest() const {
        const char* rest = next_;
        while (is_blank(*rest) || *rest == '\'' || *rest == '"') ++rest;
        while (*rest == '\r' || *rest == '\n') ++rest;
        return {rest, static_cast<std::size_t>(source_end_ - rest)};
    }

    int length() const { return target_.length(); }
    int length_before_closing() const { return length_before_closing_; }
    const char* end() const { return next_; }

  private:
    // Tells the observer that the text of the target from offset `target_at` on is for `source`.
    void report(std::string_view source, int target_at) {
        if (observer_ == nullptr) return;
        observer_->on_replaced(observer_->context, source, target_at, target_.length() - target_at);
    }

    // ---- characters ----

    bool take_next() {
        switch (*next_) {
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
        report({next_, 1}, target_.length());
        previous_ = *next_;
        ++next_;
    }

    bool between_digits() const { return is_digit(previous_) && is_digit(next_[1]); }

    void mark(bool ends_sentence) {
        previous_ = *next_;
        target_.append({next_, 1});
        ++next_;
        stop_ = ends_sentence;
    }

    // Copies characters up to the next that needs a decision, marks between digits included, or
    // until the sentence is full. Of two or more blanks at the end of the source, the last is
    // dropped.
    void run() {
        const char* begin = next_;
        const char* end = begin;
        do {
            if (*end == '.') begin_stretch(end + 1);
            end = skip_copied(end + 1, source_end_);
        } while (joins_digits(end));
        const std::ptrdiff_t room = FULL_SENTENCE + 1 - target_.length();
        const std::ptrdiff_t length = std::min(end - begin, room);
        next_ += length;
        target_.append({begin, static_cast<std::size_t>(length)});
        const char before = previous_;
        previous_ = next_[-1];
        if (*next_ == '\0' && is_blank(previous_) && (length > 1 ? next_[-2] : before) == ' ') {
            target_.cut(1);
            report({next_ - 1, 1}, target_.length());
        }
    }

    void full_stop() {
        const bool decimal_point = between_digits();
        if (!decimal_point && expand_abbreviation()) return;
        mark(!decimal_point);
        if (decimal_point) begin_stretch(next_);
    }

    // From now on, abbreviations are searched from `text` on only.
    void begin_stretch(const char* text) {
        stretch_ = text;
        hides_full_stop_ = false;
    }

    // Replaces the abbreviation that the full stop ends by its expansion. False when there is none,
    // when the expansion does not fit, and when a tag since `stretch_` contains a full stop: only
    // the first full stop of a stretch can end an abbreviation.
    bool expand_abbreviation() {
        if (hides_full_stop_) return false;
        const int row = abbreviations_.find(stretch_, next_);
        if (row == NO_ABBREVIATION) return false;
        const auto& [written, expansion] = s_spec_word_abbrevi[row];
        target_.cut(static_cast<int>(dot_offset(row)));
        const int target_at = target_.length();
        if (!target_.append(expansion) || !target_.append(" ")) return false;
        const std::string_view source(next_ - dot_offset(row), std::strlen(written));
        report(source, target_at);
        previous_ = '.';
        next_ = stretch_ = source.data() + source.size();
        return true;
    }

    // ---- markup ----

    // False when the markup is malformed and ends the scan.
    bool markup() {
        const MarkupTag* tag = find_markup_tag(next_);
        const std::string_view text = tag != nullptr ? tag_ends_.tag_at(next_) : std::string_view();
        if (tag == nullptr || text.empty()) {
            mark(false);
            return true;
        }
        switch (tag->kind) {
            case TagKind::removed:
                report(text, target_.length());
                pass(text);
                return true;
            case TagKind::kept: keep(text); return true;
            case TagKind::span_open: return open_span(text);
            default: return close_span(*tag);
        }
    }

    void keep(std::string_view tag) {
        if (tag.size() > WORD_LENGTH_MAX) {
            mark(false);
        } else {
            copy_tag(tag);
        }
    }

    void pass(std::string_view tag) {
        if (tag.find('.') != std::string_view::npos) hides_full_stop_ = true;
        next_ += tag.size();
    }

    // Copies a tag. One that does not fit ends the sentence and begins the next. Tags without a
    // full stop at the start of a stretch are left out of it: a host may have written them over
    // text that an earlier call has searched, and no stretch may begin before that of an earlier
    // call.
    bool copy_tag(std::string_view tag) {
        stop_ = !target_.append(tag);
        if (stop_) return false;
        const bool begins_stretch = stretch_ == next_;
        pass(tag);
        if (begins_stretch && !hides_full_stop_) stretch_ = next_;
        return true;
    }

    bool open_span(std::string_view tag) {
        if (tags_.begin_arr_len == OPEN_TAGS_MAX) return false;
        if (tag.size() > SAVED_TAG_MAX) {
            target_.append(tag.substr(0, SAVED_TAG_MAX + 1));  // as much as an entry holds
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
        length_before_closing_ = target_.length();
        for (int i = tags_.begin_arr_len - 1; i >= 0; --i) {
            if (!target_.append(find_markup_tag(tags_.begin_tag_arr[i])->partner)) return false;
        }
        return true;
    }

    const char* next_;  // the cursor
    const char* source_end_;
    const char* stretch_;           // where searches for abbreviations begin
    bool hides_full_stop_ = false;  // a tag since stretch_ has one inside
    BoundedText target_;
    AbbreviationSearch& abbreviations_;
    const CutObserver* observer_;
    char previous_ = 0;  // the character before the cursor; tags do not count
    bool stop_ = false;  // the sentence has ended
    int length_before_closing_ = 0;
    SsmlTagArr& tags_;  // the open spans
    TagEnds tag_ends_;
};

}  // namespace

void cut_sentence(std::string_view source, char* target, AbbreviationSearch& abbreviations,
                  const CutObserver* observer, CutSentence& sentence) {
    SentenceCutter cutter(source, target, abbreviations, observer, sentence.open_tags);
    sentence.is_well_formed = cutter.cut();
    sentence.end = cutter.end();
    sentence.rest = cutter.rest();
    sentence.length = cutter.length();
    sentence.length_before_closing = cutter.length_before_closing();
}

}  // namespace tn

int PostProTnEng::eng_text_normalize(char* sz_source_text, char* sz_target_text,
                                     char* sz_next_text) {
    tn::AbbreviationSearch abbreviations;
    tn::CutSentence sentence;
    tn::cut_sentence(sz_source_text, sz_target_text, abbreviations, nullptr, sentence);
    if (!sentence.is_well_formed || sentence.rest.empty()) return 0;
    tn::BoundedText next_text(sz_next_text, SZ_TEXT_MAX_LEN);
    const SsmlTagArr& tags = sentence.open_tags;
    for (int i = 0; i < tags.begin_arr_len; ++i) {
        if (!next_text.append(tags.begin_tag_arr[i])) return 0;
    }
    next_text.append(sentence.rest);
    return 0;
}

}  // namespace kavi

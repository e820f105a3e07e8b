#include "text_window.h"

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string>

namespace kavi::host {

namespace {

// More than the longest sentence that the engine itself cuts.
constexpr std::size_t FILL_BELOW = SZ_TEXT_MAX_LEN;

// In a long text, a tag that the engine would remove is replaced by a blank if it is longer.
constexpr std::size_t REMOVED_TAG_MAX = 500;

constexpr std::size_t FOREIGN_TAG_MAX = 256;

// Bytes outside ASCII that are one finding, at most: a longer run is reported in parts.
constexpr std::size_t FOREIGN_RUN_MAX = std::size_t{1} << 20U;

bool is_continuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

// The length of the markup tag that the engine takes whole at the start of `text`; 0 when it reads
// text there.
std::size_t tag_length(std::string_view text) {
    if (text[0] != '<') return 0;
    const tn::MarkupTag* tag = tn::find_markup_tag(text);
    const std::size_t end = tag != nullptr ? text.find('>') : std::string_view::npos;
    if (end == std::string_view::npos) return 0;
    return tag->kind == tn::TagKind::kept && end >= tn::WORD_LENGTH_MAX ? 0 : end + 1;
}

bool is_of_tag_name(char c) {
    return tn::is_letter(c) || tn::is_digit(c) || c == '-' || c == ':';
}

// The length of a tag as HTML, XML and SSML have them at the start of `text`, which begins with
// "<"; 0 for none. A longer one is taken for text.
std::size_t foreign_tag_length(std::string_view text) {
    const std::size_t end = text.substr(0, FOREIGN_TAG_MAX).find_first_of("<>", 1);
    if (end == std::string_view::npos || text[end] == '<') return 0;
    std::string_view inside = text.substr(1, end - 1);
    if (tn::begins_with(inside, "!") || tn::begins_with(inside, "?")) return end + 1;
    if (tn::begins_with(inside, "/")) inside.remove_prefix(1);
    const auto* after_name = std::find_if_not(inside.begin(), inside.end(), is_of_tag_name);
    if (after_name == inside.begin() || !tn::is_letter(inside[0])) return 0;
    const bool is_name_alone = after_name == inside.end() || *after_name == '/';
    const bool has_attributes =
        !is_name_alone && *after_name == ' ' &&
        (inside.find('=') != std::string_view::npos || inside.back() == '/');
    return is_name_alone || has_attributes ? end + 1 : 0;
}

// Whether more text is needed to decide if a foreign tag begins here. Called only where no markup
// tag can begin, so `text` is longer than "<" or "</".
bool may_make_foreign_tag(std::string_view text) {
    if (text.size() >= FOREIGN_TAG_MAX || text.find_first_of("<>", 1) != std::string_view::npos)
        return false;
    std::string_view inside = text.substr(1);
    if (tn::begins_with(inside, "!") || tn::begins_with(inside, "?")) return true;
    if (tn::begins_with(inside, "/")) inside.remove_prefix(1);
    assert(!inside.empty());
    const auto* after_name = std::find_if_not(inside.begin(), inside.end(), is_of_tag_name);
    const bool may_end_name =
        after_name == inside.end() || *after_name == '/' || *after_name == ' ';
    return tn::is_letter(inside[0]) && may_end_name;
}

// Whether text may be cut between two characters without cutting a word, a number or a character.
bool is_boundary(char before, char after) {
    return !(tn::is_letter(before) && tn::is_letter(after)) &&
           !(tn::is_digit(before) && tn::is_digit(after)) && !is_continuation(after);
}

// Whether `text`, which starts with the incomplete tag `beginning`, can be the start of a markup
// tag.
bool may_make_tag(std::string_view beginning, std::string_view text) {
    return !beginning.empty() &&
           std::any_of(std::begin(tn::MARKUP_TAGS), std::end(tn::MARKUP_TAGS),
                       [=](const tn::MarkupTag& tag) {
                           const std::size_t size = tag.prefix.size();
                           return beginning.size() < size &&
                                  tn::begins_with(tag.prefix, text.substr(0, size));
                       });
}

bool is_removed_tag(std::string_view text, std::size_t tag_length) {
    return tag_length > 0 && tn::find_markup_tag(text)->kind == tn::TagKind::removed;
}

bool is_outside_ascii(char c) {
    return static_cast<unsigned char>(c) > 127;
}

// The first byte outside ASCII in [at, end), else `end`; `at` when that is after `end`. Looks at
// eight bytes at a time while there are eight.
std::size_t find_outside_ascii(std::string_view text, std::size_t at, std::size_t end) {
    constexpr std::uint64_t TOP_BITS = 0x8080808080808080;
    for (std::uint64_t eight = 0; at + sizeof eight <= end; at += sizeof eight) {
        std::memcpy(&eight, text.data() + at, sizeof eight);
        if ((eight & TOP_BITS) != 0) break;
    }
    while (at < end && !is_outside_ascii(text[at])) ++at;
    return at;
}

std::size_t value_length(std::string_view tag) {
    return tag.size() - tag.find('=') - 2;
}

}  // namespace

// ---- spans ----

void FedSpans::clear() {
    spans_.clear();
    deeper_ = values_ = 0;
    n_open_ = 0;
}

bool FedSpans::value_fits(std::string_view tag) const {
    return values_ + value_length(tag) <= tn::SPAN_CHAIN_MAX;
}

void FedSpans::open(std::string_view tag, std::size_t offset, const tn::MarkupTag* row,
                    bool left_out) {
    if (left_out && (deeper_ > 0 || spans_.size() == SPANS_MAX)) {
        ++deeper_;
        return;
    }
    spans_.push_back({row, offset, value_length(tag) + 1, left_out});
    if (left_out) return;
    ++n_open_;
    values_ += spans_.back().value_length;
}

bool FedSpans::is_innermost(const tn::MarkupTag* row) const {
    return deeper_ > 0 || (!spans_.empty() && spans_.back().row == row);
}

void FedSpans::close_innermost() {
    if (deeper_ > 0) {
        --deeper_;
        return;
    }
    const Span& innermost = spans_.back();
    if (!innermost.left_out) {
        --n_open_;
        values_ -= innermost.value_length;
    }
    spans_.pop_back();
}

void FedSpans::report_open(std::list<Diagnostic>& findings) const {
    for (const Span& span : spans_) {
        if (!span.left_out) findings.push_back({span.offset, Finding::span_never_closed});
    }
}

// ---- feeding ----

void TextWindow::begin(std::size_t offset, const TextRewriter* rewriter) {
    text_ = {};
    text_offset_ = first_offset_ = offset;
    is_complete_ = false;
    next_ = begin_ = prefix_ = end_ = origin_ = 0;
    is_full_ = false;
    next_tag_ = next_tag_end_ = next_nul_ = not_spoken_end_ = 0;
    spans_.clear();
    map_.clear();
    findings_.clear();
    rewriter_ = rewriter;
    rewriting_ = {};
    has_rewriting_ = false;
    next_rewriting_ = decided_ = 0;
}

void TextWindow::give(std::string_view text, std::size_t offset, bool is_complete) {
    const std::size_t dropped = offset - text_offset_;
    for (std::size_t* at : {&next_, &next_rewriting_, &decided_, &next_tag_, &next_tag_end_,
                            &next_nul_, &not_spoken_end_}) {
        *at -= std::min(*at, dropped);
    }
    rewriting_.drop(dropped);
    text_ = text;
    text_offset_ = offset;
    is_complete_ = is_complete;
    if (!has_rewriting_) find_rewriting();
}

// Finds the next rewriting of what has not been fed. One inside a tag is skipped.
void TextWindow::find_rewriting() {
    words_fed_ = 0;
    has_rewriting_ = false;
    rewriting_.may_go_on = !is_complete_;
    const bool may_ask = rewriter_ != nullptr && (is_complete_ || rewriter_->takes_growing_texts());
    if (may_ask) {
        do {
            has_rewriting_ = rewriter_->next(text_, rewriting_);
        } while (has_rewriting_ && rewriting_.source.offset < next_);
    }
    next_rewriting_ = decided_ = text_.size();
    if (has_rewriting_) {
        next_rewriting_ = rewriting_.source.offset;
        const auto is_no_word = [](char c) { return c == '<' || c == '\0'; };
        std::replace_if(rewriting_.words.begin(), rewriting_.words.end(), is_no_word, ' ');
    } else if (rewriter_ != nullptr && !is_complete_) {
        decided_ = may_ask ? rewriting_.decided : next_;
    }
}

// The contents move to the front when fewer than FILL_BELOW bytes remain before CAPACITY, however
// many of them are filled: so it is the same whether the text was given at once or not.
bool TextWindow::fill(bool& changed) {
    changed = !holds_rest() && CAPACITY - begin_ < FILL_BELOW + prefix_;
    if (changed) {
        std::memmove(buffer_, text(), length());
        origin_ += begin_;
        end_ = length();
        begin_ = 0;
        is_full_ = false;
        map_.drop_before(origin_ + prefix_);
    }
    const std::size_t end = end_;
    while (!is_full_ && room() > 0 && feed()) {
    }
    changed = changed || end_ != end;
    return length() > prefix_;
}

bool TextWindow::feed() {
    if (has_rewriting_ && next_ > next_rewriting_) find_rewriting();
    if (has_rewriting_ && next_ == next_rewriting_) return feed_rewriting();
    if (next_ >= decided_) return false;
    switch (text_[next_]) {
        case '<': return feed_tag();
        case '\0': return copy_without_nuls(rest().substr(0, 1));
        default: return feed_run();
    }
}

// Feeds as much of the words as there is room for. They must not form a tag with the text before.
bool TextWindow::feed_rewriting() {
    const std::string_view words = std::string_view(rewriting_.words).substr(words_fed_, room());
    if (words_fed_ == 0) {
        const std::string_view before = tag_beginning();
        if (may_make_tag(before, std::string(before) + rewriting_.words)) {
            buffer_[before.data() - buffer_] = ' ';
        }
    }
    std::memcpy(buffer_ + end_, words.data(), words.size());
    if (words_fed_ == 0) {
        const TextRange source = rewriting_.source;
        map_.replaced(words.size(), {text_offset_ + source.offset, source.length}, rewriting_.by);
    } else {
        map_.extended(words.size());
    }
    end_ += words.size();
    words_fed_ += words.size();
    if (words_fed_ == rewriting_.words.size()) {
        next_ = rewriting_.source.offset + rewriting_.source.length;
        find_rewriting();
    }
    return true;
}

bool TextWindow::feed_run() {
    std::size_t end =
        std::min({find_ahead(text_, next_, '<', CAPACITY, next_tag_),
                  find_ahead(text_, next_, '\0', CAPACITY, next_nul_), next_rewriting_, decided_});
    if (!is_complete_) end = without_open_run(end);
    if (end == next_) return false;
    const std::string_view run = text_.substr(next_, std::min(end - next_, room()));
    report_not_spoken(run);
    return copy(run);
}

// The end of a run limited to `end`, without trailing bytes outside ASCII while more of them may
// arrive.
std::size_t TextWindow::without_open_run(std::size_t end) const {
    const bool has_ended = end < text_.size() && (!is_outside_ascii(text_[end]) || has_rewriting_);
    if (has_ended) return end;
    const std::size_t first = std::max(next_, not_spoken_end_);
    std::size_t begin = end;
    while (begin > first && is_outside_ascii(text_[begin - 1])) --begin;
    return begin + (end - begin) / FOREIGN_RUN_MAX * FOREIGN_RUN_MAX;
}

// Reports each run of bytes outside ASCII, to where it ends in the text. One that began in the text
// fed before has been reported.
void TextWindow::report_not_spoken(std::string_view run) {
    const std::size_t run_end = next_ + run.size();
    std::size_t at = std::max(next_, not_spoken_end_);
    while ((at = find_outside_ascii(text_, at, run_end)) < run_end) {
        not_spoken_end_ = at;
        const std::size_t end = std::min(next_rewriting_, at + FOREIGN_RUN_MAX);
        while (not_spoken_end_ < end && is_outside_ascii(text_[not_spoken_end_])) {
            ++not_spoken_end_;
        }
        findings_.push_back({text_offset_ + at, Finding::not_spoken, not_spoken_end_ - at});
        at = not_spoken_end_;
    }
}

bool TextWindow::feed_tag() {
    const std::string_view here = rest();
    const tn::MarkupTag* row = tn::find_markup_tag(here);
    if (row == nullptr) return feed_other_tag();
    const std::size_t end = find_ahead(text_, next_, '>', TAG_MAX, next_tag_end_);
    if (end == std::string_view::npos) {
        const bool is_at_end = here.size() < TAG_MAX;
        if (is_at_end && !is_complete_) return false;
        return feed_as_text(Finding::tag_never_closed, is_at_end);
    }
    const std::string_view tag = here.substr(0, end + 1 - next_);
    switch (row->kind) {
        case tn::TagKind::span_open: return feed_opening(tag, row);
        case tn::TagKind::span_close: return feed_closing(tag, tn::find_markup_tag(row->partner));
        case tn::TagKind::removed: return feed_removed(tag);
        default: return feed_kept(tag);
    }
}

// A "<" that the engine reads as text, also where a tag of another language begins.
bool TextWindow::feed_other_tag() {
    if (!is_complete_ && (may_make_tag(rest(), rest()) || may_make_foreign_tag(rest())))
        return false;
    if (const std::size_t length = foreign_tag_length(rest()); length > 0) {
        findings_.push_back({next_offset(), Finding::foreign_tag, length});
    }
    return copy(rest().substr(0, 1));
}

bool TextWindow::feed_kept(std::string_view tag) {
    if (tag.size() <= tn::WORD_LENGTH_MAX) return copy_without_nuls(tag);
    return feed_as_text(Finding::tag_too_long, tag.find('<', 1) == std::string_view::npos);
}

// A tag that the engine reads as text. Its "<" is kept only when no ">" can end up nearer:
// because nothing is left out in it, and no span is open that is closed at the end of a sentence.
// Otherwise it would make a tag with that, and the words between be lost.
bool TextWindow::feed_as_text(Finding finding, bool keep) {
    report(finding);
    return keep && !spans_.any_fed() ? copy(rest().substr(0, 1)) : leave_out(1);
}

// After the engine removes this tag, the text around it could join into a new tag.
bool TextWindow::feed_removed(std::string_view tag) {
    const std::string_view before = tag_beginning();
    const bool joins = may_make_tag(before, before);
    const bool is_long_text = text_offset_ + text_.size() - first_offset_ >= SZ_TEXT_MAX_LEN;
    const bool too_long = tag.size() > REMOVED_TAG_MAX && is_long_text;
    if (!is_complete_ && !is_long_text && tag.size() > REMOVED_TAG_MAX) return false;
    if (!joins && !too_long) return copy_without_nuls(tag);
    if (joins) report(Finding::tag_inside_tag);
    return leave_out(tag.size());
}

std::string_view TextWindow::tag_beginning() const {
    constexpr std::size_t LONGEST = std::string_view("</quill_effect").size();
    const std::size_t length = std::min(end_, LONGEST);
    const std::string_view end(buffer_ + end_ - length, length);
    return end.substr(std::min(end.rfind('<'), end.size()));
}

// A tag that is left out takes its closing tag with it.
bool TextWindow::feed_opening(std::string_view tag, const tn::MarkupTag* row) {
    const bool too_long = tag.size() > tn::SAVED_TAG_MAX;
    const std::size_t offset = next_offset();
    const bool left_out = too_long || !spans_.has_room() || !spans_.value_fits(tag);
    if (left_out) {
        report(too_long            ? Finding::tag_too_long
               : spans_.has_room() ? Finding::too_much_open_markup
                                   : Finding::too_many_open_tags);
        leave_out(tag.size());
    } else if (!copy_without_nuls(tag)) {
        return false;
    }
    spans_.open(tag, offset, row, left_out);
    return true;
}

bool TextWindow::feed_closing(std::string_view tag, const tn::MarkupTag* opening) {
    if (!spans_.is_innermost(opening)) {
        report(spans_.any() ? Finding::mismatched_closing_tag : Finding::stray_closing_tag);
        return leave_out(tag.size());
    }
    const bool fed =
        spans_.innermost_is_left_out() ? leave_out(tag.size()) : copy_without_nuls(tag);
    if (fed) spans_.close_innermost();
    return fed;
}

bool TextWindow::copy(std::string_view piece) {
    is_full_ = piece.size() > room();
    if (is_full_) return false;
    std::memcpy(buffer_ + end_, piece.data(), piece.size());
    map_.copied(next_offset(), piece.size());
    end_ += piece.size();
    next_ += piece.size();
    return true;
}

// A NUL would end the engine's text; a blank keeps the words around it apart.
bool TextWindow::copy_without_nuls(std::string_view piece) {
    const std::size_t begin = next_offset();
    if (!copy(piece)) return false;
    for (std::size_t nul = piece.find('\0'); nul != std::string_view::npos;
         nul = piece.find('\0', nul + 1)) {
        findings_.push_back({begin + nul, Finding::nul_byte});
        buffer_[end_ - piece.size() + nul] = ' ';
    }
    return true;
}

// Feeds a blank in the place of what is left out: without it, the text before and after could make
// a tag together.
bool TextWindow::leave_out(std::size_t length) {
    buffer_[end_++] = ' ';
    map_.replaced(1, {next_offset(), length});
    next_ += length;
    return true;
}

// ---- reading ----

std::size_t TextWindow::cut_position(std::size_t size, bool inside_rewritings) const {
    const std::string_view text(buffer_ + begin_, length());
    const std::size_t limit = prefix_ + size;
    SourceMap::JointCursor joints(map_, origin_ + begin_ + prefix_);
    const auto may_cut = [&](std::size_t at) {
        return inside_rewritings || joints.is_joint(origin_ + begin_ + at);
    };
    std::size_t after_blank = 0;
    std::size_t between = 0;  // two words, numbers, characters or tags
    std::size_t within = 0;   // a word that is too long to be read whole
    char before = ' ';        // the last character that the engine does not remove
    for (std::size_t at = prefix_, next = 0; at < text.size(); at = next) {
        const std::string_view here = text.substr(at);
        const std::size_t tag = tag_length(here);
        next = at + std::max<std::size_t>(tag, 1);
        if (!is_removed_tag(here, tag)) {
            if (at > prefix_ && is_boundary(before, here[0]) && may_cut(at)) between = at;
            before = text[next - 1];
        }
        if (at > prefix_ && at <= limit && may_cut(at)) within = at;
        if (next > limit) {
            if (after_blank != 0) return after_blank;
            if (between != 0) return between;
            if (within != 0 && next - prefix_ > tn::WORD_LENGTH_MAX) return within;
        }
        if (here[0] == ' ' && may_cut(next)) after_blank = next;
    }
    return text.size();
}

// The tags are written over what has been consumed, which they come from: so there is room.
void TextWindow::consume(const char* rest, const SsmlTagArr& open) {
    begin_ = static_cast<std::size_t>(rest - buffer_);
    map_.detach_at(origin_ + begin_);
    prefix_ = 0;
    for (int i = open.begin_arr_len - 1; i >= 0; --i) {
        const std::string_view tag = open.begin_tag_arr[i];
        begin_ -= tag.size();
        prefix_ += tag.size();
        std::memcpy(buffer_ + begin_, tag.data(), tag.size());
    }
}

void TextWindow::append_sources(const char* begin, const char* end, SourceMap& sentence) const {
    const char* const first_fed = buffer_ + begin_ + prefix_;
    if (begin < first_fed) {  // tags that were written again
        const char* const prefix_end = std::min(end, first_fed);
        sentence.replaced(static_cast<std::size_t>(prefix_end - begin),
                          {source_offset(first_fed), 0});
        begin = prefix_end;
    }
    if (begin < end) sentence.append(map_, position(begin), position(end));
}

}  // namespace kavi::host

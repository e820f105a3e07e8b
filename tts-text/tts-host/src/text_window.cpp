#include "text_window.h"

#include <algorithm>
#include <cstring>

#include "common/ascii.h"
#include "markup/markup_tags.h"

namespace kavi::host {

namespace {

constexpr std::size_t WORD_MAX = WORD_MAX_LEN - 1;

// As much as a sentence may have and come out as from the engine itself, and some more.
constexpr std::size_t FILL_BELOW = 3500;

// A run without a blank that is longer than this is cut where it must be.
constexpr std::size_t RUN_MAX = 1000;

// A removed tag beyond this is left out of the text before the engine removes it.
constexpr std::size_t REMOVED_TAG_MAX = 500;

// The chains of names and values in the engine's builder hold this much.
constexpr std::size_t CHAIN_MAX = 199;

// A NUL would end the engine's text; a blank keeps the words around it apart.
char without_nul(char c) {
    return c == '\0' ? ' ' : c;
}

bool is_continuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

// Whether text may be cut before position `at`, which is not its start, without cutting a word, a
// number or a character.
bool is_boundary(std::string_view text, std::size_t at) {
    if (at >= text.size()) return true;
    const char before = text[at - 1];
    const char behind = text[at];
    return !(tn::is_letter(before) && tn::is_letter(behind)) &&
           !(tn::is_digit(before) && tn::is_digit(behind)) && !is_continuation(behind);
}

// The boundary nearest before `at`, else the nearest behind it, as far as a word that fits goes;
// `at` itself when the word is too long for any.
std::size_t boundary_near(std::string_view text, std::size_t begin, std::size_t at) {
    for (std::size_t i = at; i > begin && at - i < WORD_MAX; --i) {
        if (is_boundary(text, i)) return i;
    }
    for (std::size_t i = at; i - begin <= WORD_MAX; ++i) {
        if (is_boundary(text, i)) return std::min(i, text.size());
    }
    return at;
}

std::string_view value_of(std::string_view tag) {
    const std::size_t equal = tag.find('=');
    return tag.substr(equal + 1, tag.size() - equal - 2);
}

std::size_t name_length(std::string_view tag) {
    return tag.find('=') - 1;
}

}  // namespace

std::size_t tag_length(std::string_view text) {
    if (text[0] != '<') return 0;
    const tn::MarkupTag* tag = tn::find_markup_tag(text);
    const std::size_t end = tag != nullptr ? text.find('>') : std::string_view::npos;
    if (end == std::string_view::npos) return 0;
    return tag->kind == tn::TagKind::kept && end >= tn::MARKUP_TAG_MAX ? 0 : end + 1;
}

void TextWindow::begin(std::string_view text) {
    text_ = text;
    next_ = length_ = prefix_ = fed_ = consumed_ = left_out_ = 0;
    next_tag_ = next_tag_end_ = next_nul_ = 0;
    fed_spans_.clear();
    spans_.clear();
    events_.clear();
    gaps_.clear();
}

bool TextWindow::fill() {
    if (length_ < FILL_BELOW) {
        while (next_ < text_.size() && room() > 0 && feed()) {
        }
        window_[length_] = '\0';
    }
    return length_ > prefix_;
}

// ---- feeding: each takes one piece of the text, or answers false when it needs more room than the
// one byte that there is at least ----

// The next `c` at or behind next_, or the end of the text; `memo` is where the last search ended.
std::size_t TextWindow::find_from_here(char c, std::size_t& memo) const {
    if (memo < next_ || memo == 0) {
        memo = std::min(text_.find(c, next_), text_.size());
    }
    return memo;
}

bool TextWindow::feed() {
    switch (text_[next_]) {
        case '<': return feed_tag();
        case '\0': return copy(rest().substr(0, 1));
        default: return feed_run();
    }
}

bool TextWindow::feed_run() {
    const std::size_t end =
        std::min(find_from_here('<', next_tag_), find_from_here('\0', next_nul_));
    const std::string_view run = text_.substr(next_, end - next_);
    if (run.size() <= room()) return copy(run);
    const std::size_t blank = run.rfind(' ', room() - 1);
    if (blank != std::string_view::npos) {
        copy(run.substr(0, blank + 1));
    } else if (length_ - prefix_ < RUN_MAX) {
        copy(run.substr(0, std::min(boundary_near(run, 0, room()), room())));
    }
    return false;
}

bool TextWindow::feed_tag() {
    const std::string_view here = rest();
    const tn::MarkupTag* tag = tn::find_markup_tag(here);
    if (tag == nullptr) return copy(here.substr(0, 1));
    const std::size_t end = find_from_here('>', next_tag_end_);
    const std::string_view text = here.substr(0, end + 1 - next_);
    const bool never_closed = end == text_.size();
    const bool too_long = tag->kind == tn::TagKind::kept && text.size() > tn::MARKUP_TAG_MAX;
    if (never_closed || too_long) return feed_as_text(never_closed);
    switch (tag->kind) {
        case tn::TagKind::span_open: return feed_opening(text, tag);
        case tn::TagKind::span_close: return feed_closing(text, tn::find_markup_tag(tag->partner));
        case tn::TagKind::removed: return feed_removed(text);
        default: return copy(text);
    }
}

// The engine takes it out, and what stood before and behind it could make a tag together.
bool TextWindow::feed_removed(std::string_view tag) {
    const bool joins = ends_in_tag_beginning();
    const bool too_long = tag.size() > REMOVED_TAG_MAX && text_.size() > CAPACITY;
    if (!joins && !too_long) return copy(tag);
    if (joins) report(Finding::tag_inside_tag);
    return leave_out(tag.size());
}

bool TextWindow::ends_in_tag_beginning() const {
    constexpr std::size_t LONGEST = std::string_view("</quill_effect").size();
    const std::string_view end(window_ + length_ - std::min(length_, LONGEST),
                               std::min(length_, LONGEST));
    const std::string_view beginning = end.substr(std::min(end.rfind('<'), end.size()));
    return !beginning.empty() && std::any_of(std::begin(tn::MARKUP_TAGS), std::end(tn::MARKUP_TAGS),
                                             [=](const tn::MarkupTag& tag) {
                                                 return beginning.size() < tag.prefix.size() &&
                                                        tn::begins_with(tag.prefix, beginning);
                                             });
}

// A tag that the engine reads as text. Its "<" is left out: with a ">" that comes to stand nearer,
// because something was left out or a span is closed behind the sentence, it would make a tag, and
// the words between be lost.
bool TextWindow::feed_as_text(bool never_closed) {
    report(never_closed ? Finding::tag_never_closed : Finding::tag_too_long);
    return leave_out(1);
}

int TextWindow::open_spans() const {
    return static_cast<int>(std::count_if(fed_spans_.begin(), fed_spans_.end(),
                                          [](const Span& span) { return !span.left_out; }));
}

// A tag that is left out takes its closing tag with it.
bool TextWindow::feed_opening(std::string_view tag, const void* kind) {
    const bool too_long = tag.size() > tn::SAVED_TAG_MAX;
    const bool too_many = open_spans() == tn::OPEN_TAGS_MAX;
    if (too_long || too_many || !markup_fits(tag)) {
        report(too_long   ? Finding::tag_too_long
               : too_many ? Finding::too_many_open_tags
                          : Finding::too_much_open_markup);
        fed_spans_.push_back({tag, kind, true});
        return leave_out(tag.size());
    }
    if (!copy_event(tag, tag)) return false;
    fed_spans_.push_back({tag, kind, false});
    return true;
}

bool TextWindow::feed_closing(std::string_view tag, const void* kind) {
    if (!fed_spans_.empty() && fed_spans_.back().kind == kind) {
        const bool fed = fed_spans_.back().left_out ? leave_out(tag.size()) : copy_event(tag, {});
        if (fed) fed_spans_.pop_back();
        return fed;
    }
    report(fed_spans_.empty() ? Finding::stray_closing_tag : Finding::mismatched_closing_tag);
    return leave_out(tag.size());
}

// Whether the builder's chains hold the spans that are open and this one.
bool TextWindow::markup_fits(std::string_view tag) const {
    std::size_t names = name_length(tag);
    std::size_t values = value_of(tag).size();
    for (const Span& span : fed_spans_) {
        if (span.left_out) continue;
        names += name_length(span.tag) + 1;
        values += value_of(span.tag).size() + 1;
    }
    return std::max(names, values) <= CHAIN_MAX;
}

bool TextWindow::copy(std::string_view piece) {
    if (piece.size() > room()) return false;
    fed_ += piece.size();
    for (const char c : piece) {
        if (c == '\0') report(Finding::nul_byte);
        window_[length_++] = without_nul(c);
        ++next_;
    }
    return true;
}

bool TextWindow::copy_event(std::string_view tag, std::string_view opening) {
    const std::size_t at = fed_;
    if (!copy(tag)) return false;
    events_.push_back({at, opening});
    return true;
}

// Puts a blank in the place of what is left out: without it, what stands before and behind could
// make a tag together.
bool TextWindow::leave_out(std::size_t length) {
    window_[length_++] = ' ';
    ++fed_;
    gaps_.push_back({fed_, length - 1});
    next_ += length;
    return true;
}

void TextWindow::report(Finding finding) {
    diagnostics_.push_back({next_, finding});
}

// ---- reading ----

std::size_t TextWindow::cut_position(std::size_t size) const {
    const std::string_view text(window_, length_);
    const std::size_t limit = std::min(prefix_ + size, length_);
    std::size_t behind_blank = 0;
    std::size_t run = prefix_;  // where the text behind the last tag begins
    std::size_t at = prefix_;
    while (at < limit) {
        const std::size_t tag = tag_length(text.substr(at));
        if (at + tag > limit) break;
        if (tag > 0) {
            run = at += tag;
            continue;
        }
        if (text[at++] == ' ') behind_blank = at;
    }
    if (at == length_) return length_;
    if (behind_blank != 0) return behind_blank;
    if (at == limit) return boundary_near(text, run, at);
    return at > prefix_ ? at : at + tag_length(text.substr(at));  // before a tag, or behind it
}

// The opening tags that the engine put in front of what it handed back are those open at the cut,
// which lies where the lengths agree.
void TextWindow::consume(std::size_t cut, std::size_t handed_back) {
    const std::size_t end = fed_ - (length_ - cut);
    std::size_t open = 0;
    for (const std::string_view tag : spans_) open += tag.size();
    std::size_t n_events = 0;
    for (const SpanEvent& event : events_) {
        if (event.at >= end) break;
        if (handed_back > 0 && end - event.at + open <= handed_back) break;
        if (event.opening.empty()) {
            open -= spans_.back().size();
            spans_.pop_back();
        } else {
            open += event.opening.size();
            spans_.push_back(event.opening);
        }
        ++n_events;
    }
    events_.erase(events_.begin(), events_.begin() + static_cast<std::ptrdiff_t>(n_events));
    consumed_ = handed_back > 0 ? end + open - handed_back : end;
    std::size_t n_gaps = 0;
    while (n_gaps < gaps_.size() && gaps_[n_gaps].at <= consumed_) {
        left_out_ += gaps_[n_gaps++].length;
    }
    gaps_.erase(gaps_.begin(), gaps_.begin() + static_cast<std::ptrdiff_t>(n_gaps));
    rebuild_prefix(open);
}

// Leaves the open tags and what has not been consumed in the buffer.
void TextWindow::rebuild_prefix(std::size_t open) {
    const std::size_t left = fed_ - consumed_;
    std::memmove(window_ + open, window_ + length_ - left, left);
    char* p = window_;
    for (const std::string_view tag : spans_) {
        for (const char c : tag) *p++ = without_nul(c);
    }
    prefix_ = open;
    length_ = open + left;
    window_[length_] = '\0';
}

}  // namespace kavi::host

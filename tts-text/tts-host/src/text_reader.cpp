#include "text_reader.h"

#include <algorithm>
#include <list>

#include "tts_host.h"

namespace kavi::host {

namespace {

bool is_before(const Diagnostic& a, const Diagnostic& b) {
    return a.offset < b.offset;
}

}  // namespace

void TextReader::begin(std::size_t offset) {
    window_.begin(offset, rewriter_);
    sentence_begin_ = offset;
    searched_ = 0;
    all_read_ = true;
    needs_full_window_ = was_passed_over_ = false;
    findings_.begin_text();
}

bool TextReader::read(std::string_view text, std::size_t offset, bool is_complete,
                      const SentenceHandler& on_sentence, const DiagnosticHandler& on_diagnostic) {
    const Session session(*this);
    window_.give(text, offset, is_complete);
    for (bool changed = false; window_.fill(changed);) {
        if (changed) abbreviations_.reset();
        const bool is_filled = window_.is_filled();
        if (!is_filled && !read_early()) return true;
        const bool done = !is_filled || read_piece();
        const std::size_t end = window_.source_offset(rest_);
        collect_diagnostics(done);
        if (!report(end, on_diagnostic)) return false;
        if (!done) {
            all_read_ = false;
            sentence_begin_ = end;
        } else if (normalized_[0] != '\0') {
            const HostSentence sentence = {{sentence_begin_, end - sentence_begin_},
                                           {normalized_, static_cast<std::size_t>(cut_.length)},
                                           speakable_,
                                           records_.records(),
                                           records_.size(),
                                           *this,
                                           ends_sentence()};
            if (on_sentence && !on_sentence(sentence)) return false;
            sentence_begin_ = end;
        }
        window_.consume(rest_, cut_.open_tags);
        searched_ = 0;
        needs_full_window_ = was_passed_over_;
    }
    if (!window_.holds_rest()) return true;
    diagnostics_.clear();
    window_.report_open_spans();
    return report(offset + text.size(), on_diagnostic);
}

std::size_t TextReader::searched_to() const {
    return window_.length() > searched_ ? window_.source_offset(window_.text() + searched_)
                                        : window_.next_offset();
}

// Reads the first sentence of a window that is not full. False when it could be another in a full
// one. It is the same when the window has its end, what the engine looks at after that, and the
// begin of the next sentence. A sentence that a buffer or the arena does not hold waits for a full
// window.
bool TextReader::read_early() {
    if (needs_full_window() || !may_end_early()) return false;
    cut_sentence(window_.length());
    const char* const end = window_.text() + window_.length();
    const bool has_end = static_cast<std::size_t>(end - cut_.end) >= CLAUSE_LOOK_AHEAD;
    if (!has_end || rest_ == end) {
        if (!has_end) searched_ = window_.length() - CLAUSE_LOOK_AHEAD;
        return false;
    }
    needs_full_window_ = source_.depends_on_text_ahead() || !build_sentence();
    return !needs_full_window_;
}

// Whether a mark may end the sentence early. Searched from the end, since it mostly has come last.
bool TextReader::may_end_early() {
    const std::string_view text(window_.text(), window_.length());
    const std::size_t known = text.size() - std::min(text.size(), CLAUSE_LOOK_AHEAD);
    for (std::size_t mark = known; mark > searched_;) {
        --mark;
        const bool joins_digits =
            mark > 0 && tn::is_digit(text[mark - 1]) && tn::is_digit(text[mark + 1]);
        if (is_clause_mark(text[mark]) && !joins_digits) return true;
    }
    searched_ = std::max(searched_, known);
    return false;
}

// The first sentence of the window, or of a shorter and shorter piece of it until the engine's
// buffers and the arena hold what it reads as: as a last resort inside the words of a rewriting.
// False when not even the shortest was read: of what follows that, only the shortest is tried, so
// that a text that an arena does not hold at all costs no more than others.
bool TextReader::read_piece() {
    const std::size_t longest = was_passed_over_ ? SHORTEST_PIECE : LONG_PIECE;
    bool done = !was_passed_over_ && read_sentence(window_.length());
    if (rest_ == window_.text() + window_.length() && !window_.holds_rest()) done = false;
    done = done || read_shorter(longest, false);
    const bool is_in_rewriting = !done && window_.cut_position(SHORTEST_PIECE, true) !=
                                              window_.cut_position(SHORTEST_PIECE, false);
    if (is_in_rewriting) done = read_shorter(longest, true);
    was_passed_over_ = !done;
    return done;
}

bool TextReader::read_shorter(std::size_t size, bool inside_rewritings) {
    bool done = false;
    for (; !done && size >= SHORTEST_PIECE; size /= 2) {
        abbreviations_.reset();  // what it remembers is of another piece
        done = read_sentence(window_.cut_position(size, inside_rewritings));
        abbreviations_.reset();
    }
    return done;
}

bool TextReader::read_sentence(std::size_t cut) {
    cut_sentence(cut);
    return build_sentence();
}

void TextReader::cut_sentence(std::size_t cut) {
    normalized_[0] = '\0';
    speakable_[0] = '\0';
    char* text = window_.text();
    const char after = text[cut];
    text[cut] = '\0';
    source_.begin();
    if (!abbreviations_) abbreviations_.emplace();
    const tn::CutObserver cut_observer = source_.observer();
    tn::cut_sentence({text, cut}, normalized_, *abbreviations_, &cut_observer, cut_);
    rest_ = cut_.rest.data();
    text[cut] = after;
    are_pieces_known_ = are_words_known_ = false;
}

bool TextReader::build_sentence() {
    findings_.begin(normalized_, speakable_);
    reading_places_.begin(normalized_, speakable_);
    const tn::ReadingObserver observer = reading_observer();
    const bool is_built = cut_.is_well_formed && cut_.length <= SENTENCE_MAX &&
                          tn::tokenize(normalized_, speakable_, &observer) == 0 &&
                          records_.build(speakable_, events_);
    if (!is_built) records_.release();  // the next try has all of the arena
    return is_built;
}

// False for a clause, and for a piece of a sentence that is too long.
bool TextReader::ends_sentence() const {
    const char last = cut_.end[-1];
    return last == '.' || last == '?' || last == '!' ||
           (window_.holds_rest() && rest_ == window_.text() + window_.length());
}

// What was found in the sentence, with offsets in the text.
void TextReader::collect_diagnostics(bool done) {
    diagnostics_.clear();
    if (!done) {
        const std::size_t begin = window_.source_offset(window_.text());
        diagnostics_.push_back({begin, Finding::arena_too_small});
        return;
    }
    // They come nearly in the order of their offsets.
    for (const Diagnostic& finding : findings_.take()) {
        const TextRange source = source_of(finding.offset, 1);  // empty for a tag of the cut
        const Diagnostic found = {source.offset, finding.finding,
                                  std::min<std::size_t>(source.length, 1)};
        const bool is_reported = finding.finding == Finding::mark_not_spoken &&
                                 window_.has_finding_at(found.offset);  // of a "<"
        if (is_reported) continue;
        diagnostics_.insert(
            std::upper_bound(diagnostics_.begin(), diagnostics_.end(), found, is_before), found);
    }
}

// Reports the diagnostics of the sentence, and those of the window before `end`, in the order of
// their offsets. False when the handler returned false.
bool TextReader::report(std::size_t end, const DiagnosticHandler& on_diagnostic) {
    std::list<Diagnostic>& in_text = window_.findings();
    if (diagnostics_.empty() && in_text.empty()) return true;  // as for most sentences
    const auto hand_over = [&](const Diagnostic& diagnostic) {
        return !on_diagnostic || on_diagnostic(diagnostic);
    };
    const auto report_text_before = [&](std::size_t offset) {
        while (!in_text.empty()) {
            const Diagnostic first = in_text.front();
            if (first.offset >= offset) break;
            in_text.pop_front();
            if (!hand_over(first)) return false;
        }
        return true;
    };
    for (const Diagnostic& diagnostic : diagnostics_) {
        if (!report_text_before(diagnostic.offset) || !hand_over(diagnostic)) return false;
    }
    return report_text_before(end);
}

const std::vector<SourcePiece>& TextReader::pieces() {
    if (!are_pieces_known_) {
        source_.find_pieces(window_, cut_);
        are_pieces_known_ = true;
    }
    return source_.pieces();
}

const WordPlace* TextReader::words() {
    if (!are_words_known_) {
        reading_places_.find_places(pieces(), events_, places_);
        are_words_known_ = true;
    }
    return places_;
}

}  // namespace kavi::host

#include "tts_stream.h"

#include <algorithm>
#include <utility>

#include "text_reader.h"

namespace kavi {

namespace {

// A piece is taken in parts of at most this size, and so much is read at the latest, even if no
// clause may have ended.
constexpr std::size_t PART = 1024;

// The most that is kept of what was handed over: for rewriters, and the blanks before a sentence
// for PlainForm.
constexpr std::size_t TOLD_MAX = 4096;

// The most that is kept of the sentence that is being read, before what has not been fed.
constexpr std::size_t KEPT_MAX = 65536;

bool is_blank(char c) {
    return static_cast<unsigned char>(c) <= ' ' || c == '\x7f';
}

}  // namespace

TtsStream::TtsStream(TtsHost& host, TtsHost::SentenceHandler on_sentence,
                     TtsHost::DiagnosticHandler on_diagnostic)
    : host_(host),
      reader_(*host.reader_),
      on_sentence_(std::move(on_sentence)),
      on_diagnostic_(std::move(on_diagnostic)),
      is_owner_(!host.has_stream_ && !host.reader_->is_reading()) {
    if (!is_owner_) return;
    host_.has_stream_ = true;
    forget();
}

TtsStream::~TtsStream() {
    if (is_owner_) host_.has_stream_ = false;
}

bool TtsStream::add(std::string_view piece) {
    if (!is_open_) return false;
    for (; piece.size() > PART; piece.remove_prefix(PART)) {
        if (!take(piece.substr(0, PART))) return false;
    }
    return take(piece);
}

// Most parts are short and end no clause: they are only kept.
bool TtsStream::take(std::string_view part) {
    if (mark_ == kept_.size()) mark_ += host::find_clause_mark(part, 0);
    kept_.add(part);
    unread_ += part.size();
    const bool may_have_clause = mark_ + host::CLAUSE_LOOK_AHEAD < kept_.size();
    const bool has_clause = may_have_clause && may_tell(part.size());
    return (!has_clause && unread_ < PART) || read(false);
}

bool TtsStream::end() {
    if (!is_open_ || !read(true)) return false;
    is_open_ = false;
    return reader_.all_read();
}

void TtsStream::forget() {
    if (!is_owner_) return;
    is_forgotten_ = reader_.is_reading();
    if (is_forgotten_) return;
    kept_begin_ += kept_.size();
    kept_.clear();
    unread_ = mark_ = 0;
    reader_.begin(kept_begin_);
    is_open_ = true;
}

// Whether the last `added` bytes may have ended a clause that the last read could not hand over.
// With a rewriter, the word after the clause has to end.
bool TtsStream::may_tell(std::size_t added) const {
    if (reader_.needs_full_window()) return false;
    if (!reader_.is_rewritten()) return true;
    const std::size_t word = mark_ + host::CLAUSE_LOOK_AHEAD;
    const std::string_view text = kept_.text().substr(std::max(word, kept_.size() - added));
    return std::any_of(text.begin(), text.end(), is_blank);
}

// The stream is closed while handlers run, and stays so when one throws.
bool TtsStream::read(bool is_complete) {
    is_open_ = false;
    const auto goes_on = [this](const auto& handler, const auto& told) {
        return (!handler || handler(told)) && !is_forgotten_;
    };
    is_open_ = reader_.read(
        text(), kept_begin_, is_complete,
        [&](const HostSentence& sentence) { return goes_on(on_sentence_, sentence); },
        [&](const Diagnostic& found) { return goes_on(on_diagnostic_, found); });
    if (is_forgotten_) {
        forget();
        return false;
    }
    unread_ = 0;
    mark_ = host::find_clause_mark(text(), reader_.searched_to() - kept_begin_);
    drop_told();
    return is_open_;
}

// Drops what was handed over, except what is looked back at. Only when that is much, so that the
// bytes that are kept move seldom.
void TtsStream::drop_told() {
    const std::size_t fed = reader_.fed_to() - kept_begin_;
    const std::size_t told =
        std::max(reader_.sentence_begin() - kept_begin_, fed - std::min(fed, KEPT_MAX));
    if (told < 2 * TOLD_MAX) return;
    std::size_t begin = told - TextRewriter::LOOK_BACK_MAX;
    while (begin > told - TOLD_MAX && is_blank(text()[begin])) --begin;
    kept_.cut_front(begin);
    kept_begin_ += begin;
    mark_ -= std::min(mark_, begin);
}

}  // namespace kavi

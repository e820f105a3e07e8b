#include "tts_stream.h"

#include <algorithm>
#include <utility>

#include "text_reader.h"

namespace kavi {

namespace {

// A piece is taken in parts of at most this, and so much is read at the latest though nothing may
// be told.
constexpr std::size_t PART = 1024;

// How much of what was told is kept: for rewriters, and blanks before a sentence for PlainForm.
constexpr std::size_t TOLD_MAX = 4096;
// Of a sentence so much before where it is fed.
constexpr std::size_t KEPT_MAX = 65536;

bool is_blank(char c) {
    return static_cast<unsigned char>(c) <= ' ' || c == '\x7f';
}

}  // namespace

TtsStream::TtsStream(TtsHost& host, TtsHost::SentenceHandler on_sentence,
                     TtsHost::DiagnosticHandler on_diagnostic)
    : host_(host),
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
    if (!is_open_ || host_.reader_->is_reading()) return false;
    while (!piece.empty()) {
        const std::string_view part = piece.substr(0, PART);
        piece.remove_prefix(part.size());
        kept_ += part;
        unread_ += part.size();
        if (may_tell(part) && !read(false)) return false;
    }
    return true;
}

bool TtsStream::end() {
    if (!is_open_ || host_.reader_->is_reading()) return false;
    const bool is_read = read(true) && host_.reader_->all_read();
    is_open_ = false;
    return is_read;
}

void TtsStream::forget() {
    if (!is_owner_) return;
    is_forgotten_ = host_.reader_->is_reading();
    if (is_forgotten_) return;
    kept_begin_ += kept_.size();
    kept_.clear();
    unread_ = mark_ = 0;
    host_.reader_->begin(kept_begin_);
    is_open_ = true;
}

// Whether a clause may have ended that was not told when it was read last, or much has come. What
// follows the clause has to be there, and where it is rewritten a word has to end.
bool TtsStream::may_tell(std::string_view part) {
    if (unread_ >= PART) return true;
    const host::TextReader& reader = *host_.reader_;
    if (reader.needs_full_window()) return false;
    mark_ = host::find_clause_mark(kept_, mark_);
    if (mark_ + host::CLAUSE_LOOK_AHEAD >= kept_.size()) return false;
    return !reader.is_rewritten() || std::any_of(part.begin(), part.end(), is_blank);
}

// It stays closed when a handler throws.
bool TtsStream::read(bool is_complete) {
    is_open_ = false;
    const auto goes_on = [this](const auto& handler, const auto& told) {
        return (!handler || handler(told)) && !is_forgotten_;
    };
    host::TextReader& reader = *host_.reader_;
    is_open_ = reader.read(
        kept_, kept_begin_, is_complete,
        [&](const HostSentence& sentence) { return goes_on(on_sentence_, sentence); },
        [&](const Diagnostic& found) { return goes_on(on_diagnostic_, found); });
    if (is_forgotten_) {
        forget();
        return false;
    }
    unread_ = 0;
    mark_ = reader.searched_to() - kept_begin_;
    drop_told();
    return is_open_;
}

// What was told, but for what is looked back at; when it is much, so that each byte moves seldom.
void TtsStream::drop_told() {
    const host::TextReader& reader = *host_.reader_;
    const std::size_t fed = reader.fed_to() - kept_begin_;
    const std::size_t told =
        std::max(reader.sentence_begin() - kept_begin_, fed - std::min(fed, KEPT_MAX));
    if (told < 2 * TOLD_MAX) return;
    std::size_t begin = told - TextRewriter::LOOK_BACK_MAX;
    while (begin > told - TOLD_MAX && is_blank(kept_[begin])) --begin;
    kept_.erase(0, begin);
    kept_begin_ += begin;
    mark_ -= std::min(mark_, begin);
}

}  // namespace kavi

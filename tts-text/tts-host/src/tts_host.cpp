// The host's side of the engine: calling order, buffers, and the records.

#include "tts_host.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "for_host_layer.h"
#include "reading_findings.h"
#include "reading_places.h"
#include "sentence_source.h"
#include "text_window.h"

namespace kavi {

namespace {

bool is_before(const Diagnostic& a, const Diagnostic& b) {
    return a.offset < b.offset;
}

}  // namespace

class TtsHost::State final : SentencePlaces {
  public:
    // cppcheck-suppress uninitMemberVar ; of the places, those of a sentence's words are set
    State(mem_stack_handle arena, void (*destroy)(mem_stack_handle))
        : arena_(arena), destroy_(destroy) {}
    ~State() { destroy_(arena_); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    bool read(std::string_view text, const SentenceHandler& on_sentence,
              const DiagnosticHandler& on_diagnostic);
    void rewrite_by(const TextRewriter* rewriter) { rewriter_ = rewriter; }

  private:
    // Sentences that normalise to more are tried again as a shorter piece, so that there is always
    // room for what closes them.
    static constexpr int SENTENCE_MAX = 3500;
    static constexpr std::size_t LONG_PIECE = 3000;  // the first such piece; then half, and so on
    static constexpr std::size_t SHORTEST_PIECE = 16;

    // One call of read(): leaves the object fit for the next, whatever ends it.
    class Session {
      public:
        explicit Session(State& state) : state_(state) { state_.is_reading_ = true; }
        ~Session() {
            state_.release_records();
            state_.is_reading_ = false;
        }
        Session(const Session&) = delete;
        Session& operator=(const Session&) = delete;

      private:
        State& state_;
    };

    bool read_piece();
    bool read_shorter(std::size_t size, bool inside_rewritings);
    bool read_sentence(std::size_t cut);
    void release_records();
    void collect_diagnostics(bool done);
    bool report(std::size_t end, const DiagnosticHandler& on_diagnostic);

    // Looks on while a sentence is read.
    tn::ReadingObserver reading_observer() {
        return {[](void* context, std::string_view source, int output_length) {
                    static_cast<State*>(context)->reading_places_.add_plain_text(source,
                                                                                 output_length);
                    static_cast<State*>(context)->findings_.add_plain_text(source, output_length);
                },
                [](void* context, const tn::ReadingStep& step) {
                    static_cast<State*>(context)->reading_places_.add_step(step);
                    static_cast<State*>(context)->findings_.add_step(step);
                },
                this};
    }

    // While it is handed over, and before the window moves on.
    const std::vector<SourcePiece>& pieces() override;
    const WordPlace* words() override;

    mem_stack_handle arena_;
    void (*destroy_)(mem_stack_handle);
    const TextRewriter* rewriter_ = nullptr;
    bool is_reading_ = false;
    host::TextWindow window_;
    host::SentenceSource source_;
    host::ReadingFindings findings_;
    std::optional<tn::AbbreviationSearch> abbreviations_;  // of what is in the window
    tn::CutSentence cut_ = {};                             // the last sentence
    const char* rest_ = nullptr;                           // in the window, after that
    std::vector<Diagnostic> diagnostics_;                  // of that
    host::ReadingPlaces reading_places_;
    tn::TextEvents events_;                            // in the speakable text
    WordPlace places_[tn::TextEvents::WORDS_MAX + 1];  // of its records
    bool was_passed_over_ = false;  // the last piece, since the arena did not hold it
    bool are_pieces_known_ = false;
    bool are_words_known_ = false;
    char normalized_[SZ_TEXT_MAX_LEN] = {};
    char speakable_[SZ_TEXT_MAX_LEN] = {};
    UtteranceSyllable* utt_ = nullptr;
    int n_utt_ = 0;
};

bool TtsHost::State::read(std::string_view text, const SentenceHandler& on_sentence,
                          const DiagnosticHandler& on_diagnostic) {
    if (is_reading_) return false;
    const Session session(*this);
    bool all_read = true;
    std::size_t begin = 0;  // of the next sentence's source
    window_.begin(text, rewriter_);
    was_passed_over_ = false;
    findings_.begin_text();
    for (bool moved = false; window_.fill(moved);) {
        if (moved) abbreviations_.reset();
        const bool done = read_piece();
        const std::size_t end = window_.source_offset(rest_);
        collect_diagnostics(done);
        if (!report(end, on_diagnostic)) return false;
        if (!done) {
            all_read = false;
            begin = end;
        } else if (normalized_[0] != '\0') {
            const HostSentence sentence = {{begin, end - begin},
                                           {normalized_, static_cast<std::size_t>(cut_.length)},
                                           speakable_,
                                           utt_,
                                           n_utt_,
                                           *this};
            if (on_sentence && !on_sentence(sentence)) return false;
            begin = end;
        }
        window_.consume(rest_, cut_.open_tags);
    }
    diagnostics_.clear();
    window_.report_open_spans();
    return report(text.size(), on_diagnostic) && all_read;
}

// The first sentence of the window, or of a shorter and shorter piece of it until the engine's
// buffers and the arena hold what it reads as: as a last resort inside the words of a rewriting.
// False when not even the shortest was read: of what follows that, only the shortest is tried, so
// that a text that an arena does not hold at all costs no more than others.
bool TtsHost::State::read_piece() {
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

bool TtsHost::State::read_shorter(std::size_t size, bool inside_rewritings) {
    bool done = false;
    for (; !done && size >= SHORTEST_PIECE; size /= 2) {
        abbreviations_.reset();  // what it remembers is of another piece
        done = read_sentence(window_.cut_position(size, inside_rewritings));
        abbreviations_.reset();
    }
    return done;
}

bool TtsHost::State::read_sentence(std::size_t cut) {
    release_records();
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
    findings_.begin(normalized_, speakable_);
    reading_places_.begin(normalized_, speakable_);
    const tn::ReadingObserver observer = reading_observer();
    return cut_.is_well_formed && cut_.length <= SENTENCE_MAX &&
           tn::tokenize(normalized_, speakable_, &observer) == 0 &&
           tn::build_utterance(speakable_, arena_, utt_, n_utt_, events_) == 0;
}

void TtsHost::State::release_records() {
    const auto release = [arena = arena_](void* block) {
        mem_stack_release_buf(block, 0, MEM_COMMON, arena);
    };
    const UtteranceSyllable* const end = utt_ + n_utt_;
    for (const UtteranceSyllable* record = utt_; record != end; ++record) {
        release(record->syllable);
        release(record->zhuyin);
    }
    release(utt_);
    utt_ = nullptr;
    n_utt_ = 0;
}

// What was found in the sentence, with offsets in the text.
void TtsHost::State::collect_diagnostics(bool done) {
    diagnostics_.clear();
    if (!done) {
        const std::size_t begin = window_.source_offset(window_.text());
        diagnostics_.push_back({begin, Finding::arena_too_small});
        return;
    }
    // They come nearly in the order of their offsets.
    for (const Diagnostic& finding : findings_.tell()) {
        const TextRange source = source_of(finding.offset, 1);  // empty for a tag of the cut
        const Diagnostic found = {source.offset, finding.finding,
                                  std::min<std::size_t>(source.length, 1)};
        const bool is_told = finding.finding == Finding::mark_not_spoken &&
                             window_.has_finding_at(found.offset);  // of a "<"
        if (is_told) continue;
        diagnostics_.insert(
            std::upper_bound(diagnostics_.begin(), diagnostics_.end(), found, is_before), found);
    }
}

// Reports these, and what was found in the text before `end`, in the order of their offsets. False
// when the handler said so.
bool TtsHost::State::report(std::size_t end, const DiagnosticHandler& on_diagnostic) {
    std::deque<Diagnostic>& in_text = window_.findings();
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

const std::vector<SourcePiece>& TtsHost::State::pieces() {
    if (!are_pieces_known_) {
        source_.find_pieces(window_, cut_);
        are_pieces_known_ = true;
    }
    return source_.pieces();
}

const WordPlace* TtsHost::State::words() {
    if (!are_words_known_) {
        reading_places_.find_places(pieces(), events_, places_);
        are_words_known_ = true;
    }
    return places_;
}

TextRange SentencePlaces::source_of(std::size_t at, std::size_t length) {
    return host::PieceCursor(pieces(), at).source_of(at, length);
}

// The arena is taken over even when there is no memory for the rest.
TtsHost::TtsHost(mem_stack_handle arena, void (*destroy)(mem_stack_handle)) try
    : state_(std::make_unique<State>(arena, destroy)) {
} catch (...) {
    destroy(arena);
}

TtsHost::TtsHost(mem_stack_handle arena) : TtsHost(arena, [](mem_stack_handle) {}) {}

TtsHost::~TtsHost() = default;

void TtsHost::rewrite_by(const TextRewriter* rewriter) {
    state_->rewrite_by(rewriter);
}

bool TtsHost::read(std::string_view text, const SentenceHandler& on_sentence,
                   const DiagnosticHandler& on_diagnostic) {
    return state_->read(text, on_sentence, on_diagnostic);
}

}  // namespace kavi

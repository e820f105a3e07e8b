// The host's side of the engine: calling order, buffers, what is handed back, and the records.

#include "tts_host.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "number_findings.h"
#include "post_pro_tn_eng.h"
#include "text_window.h"

namespace kavi {

const char* describe(Finding finding) {
    switch (finding) {
        case Finding::stray_closing_tag: return "this closing tag closes nothing; it is left out";
        case Finding::mismatched_closing_tag:
            return "this closing tag is of another kind than the innermost open one; it is left "
                   "out";
        case Finding::too_many_open_tags:
            return "ten tags are open here; this one is left out with its closing tag";
        case Finding::too_much_open_markup:
            return "the open tags have more than 199 characters of names or values; this one is "
                   "left "
                   "out with its closing tag";
        case Finding::tag_too_long: return "this tag is too long to be read as one";
        case Finding::tag_never_closed: return "this tag has no \">\"; it is read as text";
        case Finding::nul_byte: return "a NUL byte is read as a blank";
        case Finding::digits_not_read:
            return "the digits of this number after the twelfth are not read";
        case Finding::reading_cut: return "the reading of this number is too long and was cut";
        case Finding::arena_too_small:
            return "the arena is too small for this sentence; it is passed over";
    }
    return "";
}

class TtsHost::State {
  public:
    explicit State(std::size_t n_capacity) : arena_(mem_stack_create(n_capacity)) {
        engine_.init(arena_);
    }
    ~State() { mem_stack_destroy(arena_); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    bool read(std::string_view text, const SentenceHandler& on_sentence,
              const DiagnosticHandler& on_diagnostic);

  private:
    enum class Outcome { done, too_long, no_memory };

    // Sentences that normalise to more are tried again as a shorter piece, so that there is always
    // room for what closes them.
    static constexpr std::size_t SENTENCE_MAX = 3500;
    static constexpr std::size_t LONG_PIECE = 3000;  // the first such piece; then half, and so on
    static constexpr std::size_t SHORTEST_PIECE = 16;

    Outcome read_sentence(std::size_t cut);
    Outcome read_piece();
    bool deliver(HostSentence sentence, const SentenceHandler& on_sentence);
    void report_up_to(std::size_t offset, const DiagnosticHandler& on_diagnostic);

    mem_stack_handle arena_;
    PostProTnEng engine_;
    std::vector<Diagnostic> diagnostics_;
    host::TextWindow window_{diagnostics_};
    std::size_t cut_ = 0;
    char normalized_[SZ_TEXT_MAX_LEN] = {};
    char handed_back_[SZ_TEXT_MAX_LEN] = {};
    char speakable_[SZ_TEXT_MAX_LEN] = {};
};

bool TtsHost::State::read(std::string_view text, const SentenceHandler& on_sentence,
                          const DiagnosticHandler& on_diagnostic) {
    bool all_read = true;
    diagnostics_.clear();
    window_.begin(text);
    while (window_.fill()) {
        const std::size_t offset = window_.source_offset();
        const Outcome outcome = read_piece();
        window_.consume(cut_, std::strlen(handed_back_));
        HostSentence sentence = {
            offset, window_.source_offset() - offset, normalized_, speakable_, nullptr, 0};
        if (outcome == Outcome::done) {
            host::find_unread_numbers(engine_, arena_, normalized_,
                                      text.substr(offset, sentence.length), offset, diagnostics_);
        }
        report_up_to(offset + sentence.length, on_diagnostic);
        if (sentence.normalized.empty()) continue;
        if (outcome == Outcome::done && deliver(sentence, on_sentence)) continue;
        on_diagnostic({offset, Finding::arena_too_small});
        all_read = false;
    }
    report_up_to(text.size(), on_diagnostic);
    return all_read;
}

// The first sentence of the window, or of a shorter and shorter piece of it until the engine's
// buffers hold what it reads as.
TtsHost::State::Outcome TtsHost::State::read_piece() {
    cut_ = window_.length();
    Outcome outcome = read_sentence(cut_);
    for (std::size_t size = LONG_PIECE; outcome == Outcome::too_long && size >= SHORTEST_PIECE;
         size /= 2) {
        cut_ = window_.cut_position(size);
        outcome = read_sentence(cut_);
    }
    return outcome;
}

TtsHost::State::Outcome TtsHost::State::read_sentence(std::size_t cut) {
    std::memset(normalized_, 0, sizeof normalized_);
    handed_back_[0] = '\0';
    speakable_[0] = '\0';
    char* source = window_.text();
    const char behind = source[cut];
    source[cut] = '\0';
    static_cast<void>(engine_.eng_text_normalize(source, normalized_, handed_back_));
    source[cut] = behind;
    if (std::strlen(normalized_) > SENTENCE_MAX) return Outcome::too_long;
    if (engine_.eng_text_tokenize(normalized_, speakable_) == 0) return Outcome::done;
    return speakable_[0] != '\0' ? Outcome::too_long : Outcome::no_memory;
}

// False when the arena has no room for the records.
bool TtsHost::State::deliver(HostSentence sentence, const SentenceHandler& on_sentence) {
    UtteranceSyllable* utt = nullptr;
    int n_utt = 0;
    const bool built = engine_.eng_text_to_utterance_syllable(speakable_, utt, n_utt) == 0;
    if (built) {
        sentence.records = utt;
        sentence.n_records = n_utt;
        on_sentence(sentence);
    }
    const auto release = [this](void* block, std::size_t size) {
        mem_stack_release_buf(block, size, MEM_COMMON, arena_);
    };
    for (int i = 0; i < n_utt; ++i) {
        release(utt[i].syllable, static_cast<std::size_t>(utt[i].syl_len));
        release(utt[i].zhuyin, static_cast<std::size_t>(utt[i].zy_len));
    }
    release(utt, static_cast<std::size_t>(n_utt) * sizeof(UtteranceSyllable));
    return built;
}

void TtsHost::State::report_up_to(std::size_t offset, const DiagnosticHandler& on_diagnostic) {
    std::sort(diagnostics_.begin(), diagnostics_.end(),
              [](const Diagnostic& a, const Diagnostic& b) { return a.offset < b.offset; });
    std::size_t n = 0;
    while (n < diagnostics_.size() && diagnostics_[n].offset < offset) {
        on_diagnostic(diagnostics_[n++]);
    }
    diagnostics_.erase(diagnostics_.begin(), diagnostics_.begin() + static_cast<std::ptrdiff_t>(n));
}

TtsHost::TtsHost(std::size_t n_capacity) : state_(std::make_unique<State>(n_capacity)) {}

TtsHost::~TtsHost() = default;

bool TtsHost::read(std::string_view text, const SentenceHandler& on_sentence,
                   const DiagnosticHandler& on_diagnostic) {
    return state_->read(text, on_sentence, on_diagnostic);
}

}  // namespace kavi

// The host's side of the engine: calling order, buffers, what is handed back, and the records.

#include "tts_host.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <vector>

#include "number_findings.h"
#include "post_pro_tn_eng.h"
#include "text_window.h"

namespace kavi {

namespace {

// In the order of Finding.
const char* const DESCRIPTIONS[] = {
    "this closing tag closes nothing; it is left out",
    "this closing tag is of another kind than the innermost open one; it is left out",
    "ten tags are open here; this one is left out with its closing tag",
    "more than 199 characters of names or values are open; this tag is left out with its closing",
    "this tag is too long to be read as one",
    "this tag stands inside the beginning of another; a blank is read in its place",
    "this tag has no \">\"; it is read as text",
    "a NUL byte is read as a blank",
    "the digits of this number after the twelfth are not read",
    "the reading of this number is too long and was cut",
    "the arena is too small for this sentence; it is passed over",
};
static_assert(std::size(DESCRIPTIONS) == static_cast<std::size_t>(Finding::arena_too_small) + 1);

}  // namespace

const char* describe(Finding finding) {
    return DESCRIPTIONS[static_cast<std::size_t>(finding)];
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
    // Sentences that normalise to more are tried again as a shorter piece, so that there is always
    // room for what closes them.
    static constexpr std::size_t SENTENCE_MAX = 3500;
    static constexpr std::size_t LONG_PIECE = 3000;  // the first such piece; then half, and so on
    static constexpr std::size_t SHORTEST_PIECE = 16;

    bool read_piece();
    bool read_sentence(std::size_t cut);
    void release_records();
    void report_up_to(std::size_t offset, const DiagnosticHandler& on_diagnostic);

    mem_stack_handle arena_;
    PostProTnEng engine_;
    std::vector<Diagnostic> diagnostics_;
    host::TextWindow window_{diagnostics_};
    std::size_t cut_ = 0;
    char normalized_[SZ_TEXT_MAX_LEN] = {};
    char handed_back_[SZ_TEXT_MAX_LEN] = {};
    char speakable_[SZ_TEXT_MAX_LEN] = {};
    UtteranceSyllable* utt_ = nullptr;
    int n_utt_ = 0;
};

bool TtsHost::State::read(std::string_view text, const SentenceHandler& on_sentence,
                          const DiagnosticHandler& on_diagnostic) {
    bool all_read = true;
    std::size_t begin = 0;  // of the next sentence's source
    diagnostics_.clear();
    window_.begin(text);
    while (window_.fill()) {
        const std::size_t offset = window_.source_offset();
        const bool done = read_piece();
        window_.consume(cut_, std::strlen(handed_back_));
        const std::size_t length = window_.source_offset() - offset;
        if (done) {
            host::find_unread_numbers(engine_, arena_, normalized_, text.substr(offset, length),
                                      offset, diagnostics_);
        } else {
            diagnostics_.push_back({offset, Finding::arena_too_small});
            all_read = false;
            begin = offset + length;
        }
        report_up_to(offset + length, on_diagnostic);
        if (done && normalized_[0] != '\0') {
            on_sentence({begin, offset + length - begin, normalized_, speakable_, utt_, n_utt_});
            begin = offset + length;
        }
        release_records();
    }
    report_up_to(text.size(), on_diagnostic);
    return all_read;
}

// The first sentence of the window, or of a shorter and shorter piece of it until the engine's
// buffers and the arena hold what it reads as. False when not even the shortest was read.
bool TtsHost::State::read_piece() {
    cut_ = window_.length();
    bool done = read_sentence(cut_);
    for (std::size_t size = LONG_PIECE; !done && size >= SHORTEST_PIECE; size /= 2) {
        cut_ = window_.cut_position(size);
        done = read_sentence(cut_);
    }
    return done;
}

bool TtsHost::State::read_sentence(std::size_t cut) {
    release_records();
    std::memset(normalized_, 0, sizeof normalized_);
    handed_back_[0] = '\0';
    speakable_[0] = '\0';
    char* source = window_.text();
    const char behind = source[cut];
    source[cut] = '\0';
    static_cast<void>(engine_.eng_text_normalize(source, normalized_, handed_back_));
    source[cut] = behind;
    return std::strlen(normalized_) <= SENTENCE_MAX &&
           engine_.eng_text_tokenize(normalized_, speakable_) == 0 &&
           engine_.eng_text_to_utterance_syllable(speakable_, utt_, n_utt_) == 0;
}

void TtsHost::State::release_records() {
    const auto release = [this](void* block, std::size_t size) {
        mem_stack_release_buf(block, size, MEM_COMMON, arena_);
    };
    for (int i = 0; i < n_utt_; ++i) {
        release(utt_[i].syllable, static_cast<std::size_t>(utt_[i].syl_len));
        release(utt_[i].zhuyin, static_cast<std::size_t>(utt_[i].zy_len));
    }
    release(utt_, static_cast<std::size_t>(n_utt_) * sizeof(UtteranceSyllable));
    utt_ = nullptr;
    n_utt_ = 0;
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

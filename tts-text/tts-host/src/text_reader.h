// Reading a text, or as much of it as is known, to sentences: calling order, buffers and records.
#ifndef KAVI_HOST_TEXT_READER_H
#define KAVI_HOST_TEXT_READER_H

#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "for_host_layer.h"
#include "reading_findings.h"
#include "reading_places.h"
#include "sentence_records.h"
#include "sentence_source.h"
#include "text_window.h"

namespace kavi {
struct HostSentence;
}

namespace kavi::host {

constexpr bool is_clause_mark(char c) {
    switch (c) {
        case '.':
        case ',':
        case ':':
        case ';':
        case '?':
        case '!': return true;
        default: return false;
    }
}

// The offset of the first mark from `at` on that may end a clause or a sentence, or the text's
// size.
inline std::size_t find_clause_mark(std::string_view text, std::size_t at) {
    while (at < text.size() && !is_clause_mark(text[at])) ++at;
    return at;
}

// The number of characters after such a mark that decide what it is, as in "e.g.".
constexpr std::size_t CLAUSE_LOOK_AHEAD = 2;

using SentenceHandler = std::function<bool(const HostSentence&)>;
using DiagnosticHandler = std::function<bool(const Diagnostic&)>;

// Reads one text after the other, each as far as it is known.
class TextReader final : SentencePlaces {
  public:
    // cppcheck-suppress uninitMemberVar ; of the places, those of a sentence's words are set
    // `destroy` is called with the arena at the end.
    TextReader(mem_stack_handle arena, void (*destroy)(mem_stack_handle))
        : arena_(arena), destroy_(destroy), records_(arena) {}
    ~TextReader() { destroy_(arena_); }
    TextReader(const TextReader&) = delete;
    TextReader& operator=(const TextReader&) = delete;

    void rewrite_by(const TextRewriter* rewriter) { rewriter_ = rewriter; }

    bool is_rewritten() const { return rewriter_ != nullptr; }

    // Whether read() is running: true in a handler.
    bool is_reading() const { return is_reading_; }

    // Begins a text, whose first byte is at `offset`.
    void begin(std::size_t offset);

    // Hands over the sentences and findings that no more text can change. `text` is what is known
    // of the text from `offset` on; `is_complete`: it is all of it. False when a handler returned
    // false.
    bool read(std::string_view text, std::size_t offset, bool is_complete,
              const SentenceHandler& on_sentence, const DiagnosticHandler& on_diagnostic);

    // Whether no piece of the text was passed over for want of room in the arena.
    bool all_read() const { return all_read_; }

    // The offset in the text of the next sentence, and of the text that has not been fed.
    std::size_t sentence_begin() const { return sentence_begin_; }
    std::size_t fed_to() const { return window_.next_offset(); }

    // The next sentence cannot be read before the window is full, whatever marks there are.
    bool needs_full_window() const { return needs_full_window_; }

    // Otherwise: no mark before this offset in the text ends the next sentence.
    std::size_t searched_to() const;

  private:
    // Sentences that normalise to more are tried again as a shorter piece, so that there is always
    // room for what closes them.
    static constexpr int SENTENCE_MAX = 3500;
    static constexpr std::size_t LONG_PIECE = 3000;  // the first such piece; then half, and so on
    static constexpr std::size_t SHORTEST_PIECE = 16;

    // One call of read(). Releases what it used, whether it returns or throws.
    class Session {
      public:
        explicit Session(TextReader& reader) : reader_(reader) { reader_.is_reading_ = true; }
        ~Session() {
            reader_.records_.release();
            reader_.is_reading_ = false;
        }
        Session(const Session&) = delete;
        Session& operator=(const Session&) = delete;

      private:
        TextReader& reader_;
    };

    bool read_piece();
    bool read_shorter(std::size_t size, bool inside_rewritings);
    bool read_early();
    bool may_end_early();
    bool read_sentence(std::size_t cut);
    void cut_sentence(std::size_t cut);
    bool build_sentence();
    bool ends_sentence() const;
    void collect_diagnostics(bool done);
    bool report(std::size_t end, const DiagnosticHandler& on_diagnostic);

    // Passes each step of reading a sentence to what notes places and findings.
    tn::ReadingObserver reading_observer() {
        return {[](void* context, std::string_view source, int output_length) {
                    static_cast<TextReader*>(context)->reading_places_.add_plain_text(
                        source, output_length);
                    static_cast<TextReader*>(context)->findings_.add_plain_text(source,
                                                                                output_length);
                },
                [](void* context, const tn::ReadingStep& step) {
                    static_cast<TextReader*>(context)->reading_places_.add_step(step);
                    static_cast<TextReader*>(context)->findings_.add_step(step);
                },
                this};
    }

    // ---- SentencePlaces: for handlers, before the window moves on ----
    const std::vector<SourcePiece>& pieces() override;
    const WordPlace* words() override;

    mem_stack_handle arena_;
    void (*destroy_)(mem_stack_handle);
    const TextRewriter* rewriter_ = nullptr;
    bool is_reading_ = false;
    bool all_read_ = true;
    std::size_t sentence_begin_ = 0;  // of the next sentence's source
    std::size_t searched_ = 0;        // no mark before this offset in the window ends it
    bool needs_full_window_ = false;
    TextWindow window_;
    SentenceSource source_;
    ReadingFindings findings_;
    std::optional<tn::AbbreviationSearch> abbreviations_;  // of what is in the window
    tn::CutSentence cut_ = {};                             // of the last sentence
    const char* rest_ = nullptr;                           // where the window goes on after it
    std::vector<Diagnostic> diagnostics_;                  // of it
    ReadingPlaces reading_places_;
    SentenceRecords records_;
    tn::TextEvents events_;                            // in the speakable text
    WordPlace places_[tn::TextEvents::WORDS_MAX + 1];  // of its records
    bool was_passed_over_ = false;                     // the arena did not hold the last piece
    bool are_pieces_known_ = false;
    bool are_words_known_ = false;
    char normalized_[SZ_TEXT_MAX_LEN] = {};
    char speakable_[SZ_TEXT_MAX_LEN] = {};
};

}  // namespace kavi::host

#endif  // KAVI_HOST_TEXT_READER_H

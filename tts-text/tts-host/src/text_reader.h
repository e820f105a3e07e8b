// Sentences of texts, as far as what is there of them tells: calling order, buffers, and records.
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

// The first mark from `at` on that may end a clause or a sentence, else the text's end.
inline std::size_t find_clause_mark(std::string_view text, std::size_t at) {
    while (at < text.size() && !is_clause_mark(text[at])) ++at;
    return at;
}

// How far after such a mark the engine looks to know what it is: as in "e.g.".
constexpr std::size_t CLAUSE_LOOK_AHEAD = 2;

using SentenceHandler = std::function<bool(const HostSentence&)>;
using DiagnosticHandler = std::function<bool(const Diagnostic&)>;

// Reads one text after the other, each as far as it is there. On an arena that is given back at the
// end.
class TextReader final : SentencePlaces {
  public:
    // cppcheck-suppress uninitMemberVar ; of the places, those of a sentence's words are set
    TextReader(mem_stack_handle arena, void (*destroy)(mem_stack_handle))
        : arena_(arena), destroy_(destroy), records_(arena) {}
    ~TextReader() { destroy_(arena_); }
    TextReader(const TextReader&) = delete;
    TextReader& operator=(const TextReader&) = delete;

    void rewrite_by(const TextRewriter* rewriter) { rewriter_ = rewriter; }

    bool is_rewritten() const { return rewriter_ != nullptr; }

    // Whether a handler of it is being called.
    bool is_reading() const { return is_reading_; }

    // A new text, whose first byte is at `offset`.
    void begin(std::size_t offset);

    // Hands over the sentences, and what was found, that no more text can change. `text` is what is
    // there of it from `offset` on. False when a handler said so.
    bool read(std::string_view text, std::size_t offset, bool is_complete,
              const SentenceHandler& on_sentence, const DiagnosticHandler& on_diagnostic);

    // Whether nothing of the text was passed over since the arena did not hold it.
    bool all_read() const { return all_read_; }

    // Where in the text the next sentence begins, and where the text goes on that has not been fed.
    std::size_t sentence_begin() const { return sentence_begin_; }
    std::size_t fed_to() const { return window_.next_offset(); }

    // No mark before this, in the text, ends the next sentence: unless the window has to be full
    // for that to be known.
    std::size_t searched_to() const;
    bool needs_full_window() const { return needs_full_window_; }

  private:
    // Sentences that normalise to more are tried again as a shorter piece, so that there is always
    // room for what closes them.
    static constexpr int SENTENCE_MAX = 3500;
    static constexpr std::size_t LONG_PIECE = 3000;  // the first such piece; then half, and so on
    static constexpr std::size_t SHORTEST_PIECE = 16;

    // One call of read(): leaves the object fit for the next, whatever ends it.
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

    // Looks on while a sentence is read.
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

    // While it is handed over, and before the window moves on.
    const std::vector<SourcePiece>& pieces() override;
    const WordPlace* words() override;

    mem_stack_handle arena_;
    void (*destroy_)(mem_stack_handle);
    const TextRewriter* rewriter_ = nullptr;
    bool is_reading_ = false;
    bool all_read_ = true;
    std::size_t sentence_begin_ = 0;  // of the next sentence's source
    std::size_t searched_ = 0;        // in the window, before it no mark ends that sentence
    bool needs_full_window_ = false;  // to be read
    TextWindow window_;
    SentenceSource source_;
    ReadingFindings findings_;
    std::optional<tn::AbbreviationSearch> abbreviations_;  // of what is in the window
    tn::CutSentence cut_ = {};                             // the last sentence
    const char* rest_ = nullptr;                           // in the window, after that
    std::vector<Diagnostic> diagnostics_;                  // of that
    ReadingPlaces reading_places_;
    SentenceRecords records_;
    tn::TextEvents events_;                            // in the speakable text
    WordPlace places_[tn::TextEvents::WORDS_MAX + 1];  // of its records
    bool was_passed_over_ = false;  // the last piece, since the arena did not hold it
    bool are_pieces_known_ = false;
    bool are_words_known_ = false;
    char normalized_[SZ_TEXT_MAX_LEN] = {};
    char speakable_[SZ_TEXT_MAX_LEN] = {};
};

}  // namespace kavi::host

#endif  // KAVI_HOST_TEXT_READER_H

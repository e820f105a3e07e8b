// One text at once: a stream of one piece.

#include "tts_host.h"

#include "text_reader.h"

namespace kavi {

TextRange SentencePlaces::source_of(std::size_t at, std::size_t length) {
    return host::PieceCursor(pieces(), at).source_of(at, length);
}

// The arena is taken over even when there is no memory for the rest.
TtsHost::TtsHost(mem_stack_handle arena, void (*destroy)(mem_stack_handle)) try
    : reader_(std::make_unique<host::TextReader>(arena, destroy)) {
} catch (...) {
    destroy(arena);
}

TtsHost::TtsHost(mem_stack_handle arena) : TtsHost(arena, [](mem_stack_handle) {}) {}

TtsHost::~TtsHost() = default;

void TtsHost::rewrite_by(const TextRewriter* rewriter) {
    reader_->rewrite_by(rewriter);
}

bool TtsHost::read(std::string_view text, const SentenceHandler& on_sentence,
                   const DiagnosticHandler& on_diagnostic) {
    if (reader_->is_reading() || has_stream_) return false;
    reader_->begin(0);
    return reader_->read(text, 0, true, on_sentence, on_diagnostic) && reader_->all_read();
}

}  // namespace kavi

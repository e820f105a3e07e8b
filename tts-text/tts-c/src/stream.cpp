// A text that is still being written.

#include <cstdint>
#include <memory>

#include "reader.h"
#include "tts_stream.h"

struct kavi_stream {
    kavi_stream(const kavi_reader& reader, std::uint32_t wants)
        : lexicon(reader.lexicon),
          everyday(reader.everyday),
          wanted(wants),
          host(reader.capacity),
          stream(
              reads_by(reader.rewriter), [this](const auto& sentence) { return add(sentence); },
              [this](const auto& found) { return add(found); }) {}

    // Kept alive, since the rewriter is one and uses the other.
    std::shared_ptr<kavi::Lexicon> lexicon;
    std::shared_ptr<kavi::Everyday> everyday;

    std::uint32_t wanted;
    kavi::TtsHost host;
    kavi::PlainForm plain;
    std::unique_ptr<kavi_result> pending;  // what the current call hands over; null for nothing
    kavi::TtsStream stream;
    bool has_ended = false;

  private:
    kavi::TtsHost& reads_by(const kavi::TextRewriter* rewriter) {
        host.rewrite_by(rewriter);
        return host;
    }
    kavi_result& result() {
        if (pending == nullptr) pending = std::make_unique<kavi_result>();
        return *pending;
    }
    bool add(const kavi::HostSentence& sentence) {
        kavi_result& to = result();
        to.sentences.push_back(
            kavi::c::copied(sentence, stream.text(), stream.text_begin(), wanted, plain, to.pool));
        return true;
    }
    bool add(const kavi::Diagnostic& found) {
        kavi_result& to = result();
        to.findings.push_back({static_cast<std::int32_t>(found.finding), found.offset, found.length,
                               to.sentences.size()});
        return true;
    }
};

namespace {

// Does the work and hands over what it found. When there is no memory for it, the text has ended.
template <typename Work>
kavi_status hand_over(kavi_stream* stream, kavi_result** result, Work work) {
    if (result == nullptr) return KAVI_BAD_ARGUMENT;
    *result = nullptr;
    if (stream == nullptr) return KAVI_BAD_ARGUMENT;
    if (stream->has_ended) return KAVI_ENDED;
    const kavi_status status = kavi::c::guarded(work);
    if (status == KAVI_OK || status == KAVI_INCOMPLETE) {
        *result = stream->pending.release();
    } else {
        stream->has_ended = true;
        stream->pending.reset();
    }
    return status;
}

}  // namespace

kavi_status kavi_stream_new(const kavi_reader* reader, uint32_t wanted, kavi_stream** stream) {
    if (stream == nullptr) return KAVI_BAD_ARGUMENT;
    *stream = nullptr;
    const bool is_known = (wanted & ~static_cast<std::uint32_t>(KAVI_RUNS)) == 0;
    if (reader == nullptr || !is_known) return KAVI_BAD_ARGUMENT;
    return kavi::c::guarded([&] {
        *stream = new kavi_stream(*reader, wanted);
        return KAVI_OK;
    });
}

kavi_status kavi_stream_add(kavi_stream* stream, const char* piece, size_t length,
                            kavi_result** result) {
    if (piece == nullptr && length > 0) stream = nullptr;
    return hand_over(stream, result, [&] {
        stream->stream.add({length > 0 ? piece : "", length});
        return KAVI_OK;
    });
}

kavi_status kavi_stream_end(kavi_stream* stream, kavi_result** result) {
    return hand_over(stream, result, [&] {
        const bool all_read = stream->stream.end();
        stream->has_ended = true;
        return all_read ? KAVI_OK : KAVI_INCOMPLETE;
    });
}

kavi_status kavi_stream_forget(kavi_stream* stream) {
    if (stream == nullptr) return KAVI_BAD_ARGUMENT;
    stream->stream.forget();
    stream->plain = {};
    stream->has_ended = false;
    return KAVI_OK;
}

void kavi_stream_free(kavi_stream* stream) {
    delete stream;
}

// A text is read piece by piece as it is read at once: the same sentences, words, places, plain
// text and findings, however it is cut into pieces, also inside a tag or a character; with everyday
// English and a lexicon on and off, with a small arena or a large one.

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "host_reader.h"
#include "tts_everyday.h"
#include "tts_stream.h"

namespace kavi {
namespace {

void require(bool kept, const char* what) {
    if (kept) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

// One line for each sentence and finding, in order.
class Told {
  public:
    void add(const HostSentence& sentence, std::string_view text, std::size_t text_begin) {
        const TextRange& source = sentence.source;
        begin_line(source);
        lines_ += sentence.ends_sentence ? ". " : ", ";
        (lines_ += sentence.normalized) += '|';
        (lines_ += sentence.speakable) += '|';
        lines_ += to_text(sentence.records, sentence.n_records);
        for (int i = 0; i < sentence.n_records; ++i)
            begin_line(sentence.places.of_record(i).source);
        form_.read(sentence, text, text_begin);
        lines_ += form_.all();
    }
    void add(const Diagnostic& found) {
        begin_line({found.offset, found.length});
        lines_ += code_of(found.finding);
    }
    bool operator==(const Told& other) const { return lines_ == other.lines_; }
    const char* lines() const { return lines_.c_str(); }

  private:
    void begin_line(const TextRange& range) {
        lines_ += "\n" + std::to_string(range.offset) + "+" + std::to_string(range.length) + " ";
    }

    std::string lines_;
    PlainForm form_;
};

Told read_at_once(TtsHost& host, std::string_view text, bool& all_read) {
    Told told;
    all_read = host.read(
        text,
        [&](const HostSentence& sentence) {
            told.add(sentence, text, 0);
            return true;
        },
        [&](const Diagnostic& found) {
            told.add(found);
            return true;
        });
    return told;
}

// In pieces of lengths that `seed` and `most` make.
Told read_in_pieces(TtsHost& host, std::string_view text, unsigned seed, std::size_t most,
                    bool& all_read) {
    Told told;
    const TtsStream* told_by = nullptr;
    TtsStream stream(
        host,
        [&](const HostSentence& sentence) {
            told.add(sentence, told_by->text(), told_by->text_begin());
            return true;
        },
        [&](const Diagnostic& found) {
            told.add(found);
            return true;
        });
    told_by = &stream;
    while (!text.empty()) {
        seed = seed * 1103515245 + 12345;
        const std::size_t length = std::min<std::size_t>((seed >> 16U) % (most + 1), text.size());
        require(stream.add(text.substr(0, length)), "a piece is taken");
        text.remove_prefix(length);
    }
    all_read = stream.end();
    return told;
}

}  // namespace
}  // namespace kavi

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kavi;
    if (size < 4) return 0;
    const std::string unit(reinterpret_cast<const char*>(data) + 3, size - 3);
    std::string text;
    for (int i = 0; i < 1 + data[1] % 16; ++i) text += unit;  // long at little cost

    // Lines up to an empty one are a lexicon; without one, the first words are written there.
    const std::size_t empty_line = unit.find("\n\n");
    const std::string lines = empty_line != std::string::npos
                                  ? unit.substr(0, empty_line)
                                  : unit.substr(0, unit.find_first_of(".,\n")) + "\tspoken";
    Lexicon lexicon;
    std::string error;
    lexicon.add("fuzz", lines, error);
    Everyday everyday((data[0] & 1U) != 0 ? &lexicon : nullptr);
    everyday.set_all((data[0] & 2U) != 0);
    everyday.set_american_dates((data[0] & 4U) != 0);
    const bool has_rewriter = (data[0] & 3U) != 0;

    // Of a small arena it counts what it was used for before.
    const std::size_t capacity = (data[0] & 8U) != 0 ? std::size_t{data[1]} * 64 : 0;
    TtsHost host(capacity);
    TtsHost stream_host(capacity);
    for (TtsHost* each : {&host, &stream_host})
        each->rewrite_by(has_rewriter ? &everyday : nullptr);
    bool all_read = false;
    bool all_read_in_pieces = false;
    const Told at_once = read_at_once(host, text, all_read);
    constexpr std::size_t MOST[] = {1, 4, 40, 4000};
    const Told in_pieces =
        read_in_pieces(stream_host, text, data[2], MOST[data[0] >> 4U & 3U], all_read_in_pieces);
    if (!(in_pieces == at_once)) {
        std::fprintf(stderr, "at once:%s\n\nin pieces:%s\n", at_once.lines(), in_pieces.lines());
    }
    require(in_pieces == at_once, "the same in pieces");
    require(all_read == all_read_in_pieces, "the same answer");
    return 0;
}

// A reader and a stream of kavi.h while the system refuses memory: what is refused is refused
// whole, and after that they read as new ones do.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <new>
#include <string>

#include "kavi.h"

extern "C" void* __real_malloc(std::size_t size);

namespace {

// Allocations while the library is called, by number.
constexpr long NEVER = std::numeric_limits<long>::max();
long allocations = 0;
long first_refused = NEVER;
long last_refused = NEVER;
bool in_library = false;

void require(bool kept, const char* what) {
    if (kept) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

template <typename Call>
kavi_status in_want(Call call) {
    in_library = true;
    const kavi_status status = call();
    in_library = false;
    return status;
}

// What results say of a text.
struct Said {
    std::size_t n_findings = 0;
    std::string sentences;

    bool operator==(const Said& other) const {
        return n_findings == other.n_findings && sentences == other.sentences;
    }

    // Takes a result, which is there where the status says so.
    void take(kavi_status status, kavi_result* result, bool may_be_empty = false) {
        const bool is_read = status == KAVI_OK || status == KAVI_INCOMPLETE;
        require(is_read || result == nullptr, "no result without its status");
        require(!is_read || result != nullptr || may_be_empty, "a result with its status");
        n_findings += kavi_result_findings(result);
        for (std::size_t i = 0; const kavi_sentence* s = kavi_result_sentence(result, i); ++i) {
            sentences.append(s->speakable.data, s->speakable.length);
            for (std::size_t w = 0; w < s->n_words; ++w) sentences += s->words[w].text.data;
            for (std::size_t r = 0; r < s->n_runs; ++r) sentences += s->runs[r].rule;
        }
        kavi_result_free(result);
    }
};

// Sets a reader up with the settings of an input, and tells what it then says of the text.
Said set_up_and_read(kavi_reader* reader, const std::string& text, std::uint32_t classes) {
    const std::size_t line = std::min(text.find("\n\n"), text.size());
    const kavi_status lexicon =
        in_want([&] { return kavi_reader_set_lexicon(reader, "fuzz", text.data(), line); });
    require(lexicon != KAVI_BAD_LEXICON || *kavi_reader_error(reader) != '\0', "a fault is told");
    const kavi_status everyday = in_want([&] { return kavi_reader_set_everyday(reader, classes); });
    require(everyday == KAVI_OK || everyday == KAVI_NO_MEMORY, "classes that there are");
    kavi_result* result = nullptr;
    const kavi_status read =
        in_want([&] { return kavi_read(reader, text.data(), text.size(), KAVI_RUNS, &result); });
    Said said;
    said.take(read, result);
    char* spoken = nullptr;
    const kavi_status normalized = in_want([&] {
        return kavi_normalize(reader, text.data(), text.size(), KAVI_PLAIN, &spoken, nullptr);
    });
    require((spoken != nullptr) == (normalized == KAVI_OK || normalized == KAVI_INCOMPLETE),
            "a text with its status");
    kavi_free(spoken);
    return said;
}

// What a stream says of a text that comes in pieces, up to where it is refused.
Said read_in_pieces(kavi_stream* stream, const std::string& text) {
    constexpr std::size_t PIECE = 7;
    Said said;
    kavi_status status = KAVI_OK;
    for (std::size_t at = 0; at < text.size() && status == KAVI_OK; at += PIECE) {
        const std::size_t length = std::min(PIECE, text.size() - at);
        kavi_result* result = nullptr;
        status =
            in_want([&] { return kavi_stream_add(stream, text.data() + at, length, &result); });
        require(status == KAVI_OK || status == KAVI_NO_MEMORY, "a piece is taken or refused");
        said.take(status, result, true);
    }
    kavi_result* result = nullptr;
    const kavi_status end = in_want([&] { return kavi_stream_end(stream, &result); });
    require((end == KAVI_ENDED) == (status != KAVI_OK), "what is refused ends the text");
    said.take(end, result, true);
    return said;
}

// The same of a stream that is refused memory and then interrupted, if it was made.
void refuse_and_read_in_pieces(const kavi_reader* reader, const std::string& text,
                               const Said& expected) {
    kavi_stream* stream = nullptr;
    const kavi_status made = in_want([&] { return kavi_stream_new(reader, KAVI_RUNS, &stream); });
    require((stream != nullptr) == (made == KAVI_OK), "a stream with its status");
    if (stream == nullptr) return;
    read_in_pieces(stream, text);
    require(in_want([&] { return kavi_stream_forget(stream); }) == KAVI_OK, "an interruption");
    first_refused = last_refused = NEVER;
    require(read_in_pieces(stream, text) == expected, "in pieces as at once");
    kavi_stream_free(stream);
}

void refuse(const std::uint8_t* data) {
    allocations = 0;
    first_refused = data[0];
    last_refused = data[1] % 2 == 0 ? first_refused : NEVER;
}

}  // namespace

extern "C" __attribute__((used)) void* __wrap_malloc(std::size_t size) {
    if (in_library) {
        const long number = allocations++;
        if (number >= first_refused && number <= last_refused) return nullptr;
    }
    return __real_malloc(size);
}
void* operator new(std::size_t size) {
    if (void* block = std::malloc(size > 0 ? size : 1)) return block;
    throw std::bad_alloc();
}
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return std::malloc(size > 0 ? size : 1);
}
void operator delete(void* block) noexcept {
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const std::string text(reinterpret_cast<const char*>(data) + 2, size - 2);
    const std::uint32_t classes = data[1] % 4 == 0 ? 0 : KAVI_ALL_EVERYDAY;
    refuse(data);
    kavi_reader* reader = nullptr;
    if (in_want([&] { return kavi_reader_new(0, &reader); }) == KAVI_NO_MEMORY) {
        require(reader == nullptr, "none when refused");
        return 0;
    }
    // Not always told: an arena that is refused once has shorter pieces read.
    set_up_and_read(reader, text, classes);
    first_refused = last_refused = NEVER;
    kavi_reader* fresh = nullptr;
    require(kavi_reader_new(0, &fresh) == KAVI_OK, "a new reader");
    const Said expected = set_up_and_read(fresh, text, classes);
    require(set_up_and_read(reader, text, classes) == expected, "as a new one");
    refuse(data);
    refuse_and_read_in_pieces(reader, text, expected);
    first_refused = last_refused = NEVER;
    kavi_reader_free(fresh);
    kavi_reader_free(reader);
    return 0;
}

// The functions of kavi.h: check arguments and turn exceptions into statuses.

#include "kavi.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>

#include "reader.h"
#include "tts_everyday.h"
#include "tts_names.h"

namespace {

using kavi::c::guarded;

static_assert(static_cast<std::size_t>(KAVI_ATTRIBUTES) ==
              std::tuple_size_v<decltype(kavi::attributes({}))>);

constexpr const char* STATUS_TEXTS[] = {"read",
                                        "read, but for what the capacity does not hold",
                                        "stopped",
                                        "not enough memory",
                                        "bad argument",
                                        "bad lexicon",
                                        "the reader is reading",
                                        "the text has ended"};

// Marks a reader as busy.
class BusyGuard {
  public:
    explicit BusyGuard(kavi_reader& reader) : reader_(reader) { reader_.is_reading = true; }
    ~BusyGuard() { reader_.is_reading = false; }
    BusyGuard(const BusyGuard&) = delete;
    BusyGuard& operator=(const BusyGuard&) = delete;

  private:
    kavi_reader& reader_;
};

// Why a text cannot be read, or KAVI_OK.
kavi_status refusal(const kavi_reader* reader, const char* text, std::size_t length,
                    std::uint32_t wanted) {
    if (reader == nullptr || (text == nullptr && length > 0)) return KAVI_BAD_ARGUMENT;
    if ((wanted & ~static_cast<std::uint32_t>(KAVI_RUNS)) != 0) return KAVI_BAD_ARGUMENT;
    return reader->is_reading ? KAVI_BUSY : KAVI_OK;
}

template <typename OnSentence, typename OnFinding>
kavi_status read(kavi_reader& reader, std::string_view text, OnSentence on_sentence,
                 OnFinding on_finding) {
    return guarded([&] {
        const BusyGuard busy(reader);
        std::size_t n_sentences = 0;
        bool is_stopped = false;
        const bool all_read = reader.host.read(
            text,
            [&](const kavi::HostSentence& sentence) {
                ++n_sentences;
                is_stopped = !on_sentence(sentence);
                return !is_stopped;
            },
            [&](const kavi::Diagnostic& found) {
                const kavi_finding finding = {static_cast<std::int32_t>(found.finding),
                                              found.offset, found.length, n_sentences};
                is_stopped = !on_finding(finding);
                return !is_stopped;
            });
        if (is_stopped) return KAVI_STOPPED;
        return all_read ? KAVI_OK : KAVI_INCOMPLETE;
    });
}

bool is_finding(std::int32_t code) {
    return code >= 0 && code < kavi::FINDINGS;
}

}  // namespace

const char* kavi_version(void) {
    return KAVI_VERSION;
}

int32_t kavi_readings_version(void) {
    return kavi::READINGS_VERSION;
}

const char* kavi_status_text(kavi_status status) {
    const auto index = static_cast<std::size_t>(status);
    return index < std::size(STATUS_TEXTS) ? STATUS_TEXTS[index] : "unknown";
}

const char* kavi_pause_name(int32_t pause) {
    return kavi::pause_name(static_cast<kavi::PAUSE_type>(pause)).data();
}

const char* kavi_mark_name(int32_t mark) {
    return kavi::punctuation_name(static_cast<kavi::PUNC_type>(mark)).data();
}

const char* kavi_attribute_name(kavi_attribute attribute) {
    const auto index = static_cast<std::size_t>(attribute);
    return index < KAVI_ATTRIBUTES ? kavi::attributes({})[index].first : "unknown";
}

const char* kavi_finding_code(int32_t code) {
    return is_finding(code) ? kavi::code_of(static_cast<kavi::Finding>(code)) : "unknown";
}

const char* kavi_finding_message(int32_t code) {
    return is_finding(code) ? kavi::describe(static_cast<kavi::Finding>(code)) : "unknown";
}

kavi_status kavi_reader_new(size_t capacity, kavi_reader** reader) {
    if (reader == nullptr) return KAVI_BAD_ARGUMENT;
    *reader = nullptr;
    return guarded([&] {
        *reader = new kavi_reader(capacity);
        return KAVI_OK;
    });
}

void kavi_reader_free(kavi_reader* reader) {
    delete reader;
}

const char* kavi_reader_error(const kavi_reader* reader) {
    return reader != nullptr ? reader->error.c_str() : "";
}

kavi_status kavi_read(kavi_reader* reader, const char* text, size_t length, uint32_t wanted,
                      kavi_result** result) {
    if (result == nullptr) return KAVI_BAD_ARGUMENT;
    *result = nullptr;
    const kavi_status refused = refusal(reader, text, length, wanted);
    if (refused != KAVI_OK) return refused;
    std::unique_ptr<kavi_result> made;
    const std::string_view read_text(length > 0 ? text : "", length);
    const kavi_status status = guarded([&] {
        made = std::make_unique<kavi_result>();
        return read(
            *reader, read_text,
            [&](const kavi::HostSentence& sentence) {
                made->sentences.push_back(
                    kavi::c::copied(sentence, read_text, 0, wanted, reader->plain, made->pool));
                return true;
            },
            [&](const kavi_finding& finding) {
                made->findings.push_back(finding);
                return true;
            });
    });
    if (status == KAVI_OK || status == KAVI_INCOMPLETE) *result = made.release();
    return status;
}

size_t kavi_result_sentences(const kavi_result* result) {
    return result != nullptr ? result->sentences.size() : 0;
}

size_t kavi_result_findings(const kavi_result* result) {
    return result != nullptr ? result->findings.size() : 0;
}

const kavi_sentence* kavi_result_sentence(const kavi_result* result, size_t number) {
    return number < kavi_result_sentences(result) ? &result->sentences[number] : nullptr;
}

const kavi_finding* kavi_result_finding(const kavi_result* result, size_t number) {
    return number < kavi_result_findings(result) ? &result->findings[number] : nullptr;
}

void kavi_result_free(kavi_result* result) {
    delete result;
}

kavi_status kavi_read_each(kavi_reader* reader, const char* text, size_t length, uint32_t wanted,
                           const kavi_handlers* handlers) {
    if (handlers == nullptr) return KAVI_BAD_ARGUMENT;
    const kavi_status refused = refusal(reader, text, length, wanted);
    if (refused != KAVI_OK) return refused;
    kavi::c::Pool pool;
    const std::string_view read_text(length > 0 ? text : "", length);
    return read(
        *reader, read_text,
        [&](const kavi::HostSentence& sentence) {
            if (handlers->on_sentence == nullptr) return true;
            pool.clear();
            const kavi_sentence copy =
                kavi::c::copied(sentence, read_text, 0, wanted, reader->plain, pool);
            return handlers->on_sentence(handlers->user, &copy) != 0;
        },
        [&](const kavi_finding& finding) {
            return handlers->on_finding == nullptr ||
                   handlers->on_finding(handlers->user, &finding) != 0;
        });
}

kavi_status kavi_normalize(kavi_reader* reader, const char* text, size_t length, uint32_t form,
                           char** spoken, size_t* n_spoken) {
    if (n_spoken != nullptr) *n_spoken = 0;
    if (spoken == nullptr) return KAVI_BAD_ARGUMENT;
    *spoken = nullptr;
    if (form != KAVI_SPEAKABLE && form != KAVI_PLAIN) return KAVI_BAD_ARGUMENT;
    const kavi_status refused = refusal(reader, text, length, 0);
    if (refused != KAVI_OK) return refused;
    std::string all;
    const std::string_view read_text(length > 0 ? text : "", length);
    const kavi_status status = read(
        *reader, read_text,
        [&](const kavi::HostSentence& sentence) {
            if (form == KAVI_PLAIN) {
                reader->plain.read(sentence, read_text);
                all += reader->plain.all();
            } else {
                if (!all.empty()) all += '\n';
                all += sentence.speakable;
            }
            return true;
        },
        [](const kavi_finding&) { return true; });
    if (status != KAVI_OK && status != KAVI_INCOMPLETE) return status;
    *spoken = static_cast<char*>(std::malloc(all.size() + 1));
    if (*spoken == nullptr) return KAVI_NO_MEMORY;
    std::copy_n(all.c_str(), all.size() + 1, *spoken);
    if (n_spoken != nullptr) *n_spoken = all.size();
    return status;
}

void kavi_free(char* spoken) {
    std::free(spoken);
}

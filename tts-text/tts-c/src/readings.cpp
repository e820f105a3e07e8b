// A reader's lexicon and everyday English, in a file of their own, so that a program that uses
// neither does not link them.

#include "reader.h"
#include "tts_everyday.h"

namespace {

static_assert(KAVI_ALL_EVERYDAY == (1 << kavi::EVERYDAY_CLASSES) - 1);
static_assert(KAVI_MARKS == 1 << static_cast<int>(kavi::EverydayClass::marks));

// Sets the reader's lexicon, which may be null, and its classes. Throws std::bad_alloc, and then
// nothing has changed.
void rewrite(kavi_reader& reader, std::shared_ptr<kavi::Lexicon> lexicon, std::uint32_t classes) {
    auto everyday = std::make_shared<kavi::Everyday>(lexicon.get());
    for (int i = 0; i < kavi::EVERYDAY_CLASSES; ++i) {
        const bool is_on = (classes >> static_cast<unsigned>(i) & 1U) != 0;
        everyday->set(static_cast<kavi::EverydayClass>(i), is_on);
    }
    everyday->set_american_dates((classes & KAVI_AMERICAN_DATES) != 0);
    const bool is_asked_for = lexicon != nullptr || classes != 0;
    reader.rewriter = is_asked_for ? everyday.get() : nullptr;
    reader.host.rewrite_by(reader.rewriter);
    reader.everyday = std::move(everyday);
    reader.lexicon = std::move(lexicon);
    reader.classes = classes;
}

}  // namespace

kavi_status kavi_reader_set_lexicon(kavi_reader* reader, const char* name, const char* bytes,
                                    size_t length) {
    if (reader == nullptr || (bytes == nullptr && length > 0)) return KAVI_BAD_ARGUMENT;
    if (reader->is_reading) return KAVI_BUSY;
    return kavi::c::guarded([&] {
        auto lexicon = std::make_shared<kavi::Lexicon>();
        const std::string_view lines(length > 0 ? bytes : "", length);
        if (!lexicon->add(name != nullptr ? name : "lexicon", lines, reader->error)) {
            return KAVI_BAD_LEXICON;
        }
        if (lexicon->empty()) lexicon.reset();
        rewrite(*reader, lexicon, reader->classes);
        return KAVI_OK;
    });
}

uint32_t kavi_everyday_class(const char* name) {
    const auto found = kavi::everyday_class_of(name != nullptr ? name : "");
    return found ? 1U << static_cast<unsigned>(*found) : 0;
}

kavi_status kavi_reader_set_everyday(kavi_reader* reader, uint32_t classes) {
    constexpr std::uint32_t ALL = KAVI_ALL_EVERYDAY | KAVI_AMERICAN_DATES;
    if (reader == nullptr || (classes & ~ALL) != 0) return KAVI_BAD_ARGUMENT;
    if (reader->is_reading) return KAVI_BUSY;
    return kavi::c::guarded([&] {
        rewrite(*reader, reader->lexicon, classes);
        return KAVI_OK;
    });
}

// Diagnostics: what is reported about a text beside its sentences.
#ifndef KAVI_TTS_FINDINGS_H
#define KAVI_TTS_FINDINGS_H

#include <cstddef>

namespace kavi {

// The kinds of diagnostic: what the engine would pass over in silence, and what could not be read.
// describe() explains each.
enum class Finding {
    stray_closing_tag,
    mismatched_closing_tag,
    too_many_open_tags,
    too_much_open_markup,
    tag_too_long,
    tag_inside_tag,
    tag_never_closed,
    nul_byte,
    not_spoken,
    digits_not_read,
    tag_in_telephone_number,
    reading_cut,
    arena_too_small,
    span_never_closed,
    foreign_tag,
    mark_not_spoken,
};
constexpr int FINDINGS = static_cast<int>(Finding::mark_not_spoken) + 1;

// A short name for programs, such as "stray-closing-tag", which stays as it is; a constant text.
const char* code_of(Finding finding);

// One clear sentence about a finding; a constant text.
const char* describe(Finding finding);

struct Diagnostic {
    std::size_t offset;  // of the first byte that it is about, in the text given to read()
    Finding finding;
    // In bytes: of what is not spoken, or of a foreign tag; for any other kind 1, or 0 when it is
    // about a tag that is not in the text, which closes a span where the text was cut.
    std::size_t length = 1;
};

}  // namespace kavi

#endif  // KAVI_TTS_FINDINGS_H

// What a record holds, and its names for people and for programs, which stay as they are.
#ifndef KAVI_TTS_NAMES_H
#define KAVI_TTS_NAMES_H

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "ShareObj.h"

namespace kavi {

// The word of a record that is not the head record.
inline std::string_view word_of(const UtteranceSyllable& record) {
    return {record.syllable, static_cast<std::size_t>(record.syl_len - 1)};
}

// As in "intonation phrase, forced"; "unknown" for any other value. A NUL follows the name.
std::string_view pause_name(PAUSE_type pause);

// As in "<punc=" tags; "unknown" for no mark. A NUL follows the name.
std::string_view punctuation_name(PUNC_type punc);

// Whether a word has attributes, break time aside: most have none.
inline bool has_attributes(const CssmlTag& tag) {
    return (tag.emphasis[0] | tag.pro_pitch[0] | tag.pro_rate[0] | tag.pro_volume[0] |
            tag.pro_spectrum[0] | tag.poem[0] | tag.quill_effect[0]) != 0;
}

// Attribute names and values of a word, break time aside, in the record's order; empty values are
// attributes that are not set.
std::array<std::pair<const char*, const char*>, 7> attributes(const CssmlTag& tag);

}  // namespace kavi

#endif  // KAVI_TTS_NAMES_H

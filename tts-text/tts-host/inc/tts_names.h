// The names of what a record holds, for people and for programs; they stay as they are.
#ifndef KAVI_TTS_NAMES_H
#define KAVI_TTS_NAMES_H

#include <array>
#include <utility>

#include "ShareObj.h"

namespace kavi {

// As in "intonation phrase, forced"; "unknown" for a value that is none.
const char* pause_name(PAUSE_type pause);

// As in "<punc=" tags; "unknown" for no mark.
const char* punctuation_name(PUNC_type punc);

// Attribute names and values of a word, break time aside, in the record's order; empty values are
// attributes that are not set.
std::array<std::pair<const char*, const char*>, 7> attributes(const CssmlTag& tag);

}  // namespace kavi

#endif  // KAVI_TTS_NAMES_H

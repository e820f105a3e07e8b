// The names of what a record holds.
#ifndef KAVI_TOOL_NAMES_H
#define KAVI_TOOL_NAMES_H

#include <array>
#include <string>
#include <utility>

#include "ShareObj.h"

namespace kavi::tool {

const char* enumerator(PAUSE_type pause);
const char* punctuation_name(PUNC_type punc);  // as in "<punc=" tags; "unknown" for no mark

// Attribute names and values of a word, break time aside, in the record's order; empty values are
// attributes that are not set.
std::array<std::pair<const char*, const char*>, 7> attributes(const CssmlTag& tag);

// The punctuation names of a record, and its attributes that are set, separated by blanks.
std::string punctuation_list(const UtteranceSyllable& record);
std::string attribute_list(const CssmlTag& tag);

// Whether there is something to tell about the head record.
inline bool has_marks(const UtteranceSyllable& record) {
    return record.n_punc > 0 || record.cssml_tag.breaktime[0] != '\0';
}

}  // namespace kavi::tool

#endif  // KAVI_TOOL_NAMES_H

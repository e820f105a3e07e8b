// Records as SSML 1.1, the speech synthesis markup that voices take.
#ifndef KAVI_TTS_SSML_H
#define KAVI_TTS_SSML_H

#include <set>
#include <string>
#include <string_view>

#include "tts_host.h"

namespace kavi {

// Before the first sentence of a document, and after the last.
extern const char* const SSML_BEGIN;
extern const char* const SSML_END;

// An "s" element, and a line end; nothing for a sentence that has neither words nor a break. It was
// read from `text`. Words and punctuation are as PlainForm has them. Breaks are "break" elements:
// with their time, or for a forced pause with a strength. Words next to each other with the same
// attributes share their elements. docs/ssml.md tells which value becomes which. What has no
// counterpart is left out, and its name and value, as in "poem=a", added to `lost`.
//
// With `has_marks`, a "mark" element stands before each word, named OFFSET-LENGTH after the bytes
// that it was read from. `text` begins at `text_begin` when what is before it is not there any
// more.
std::string ssml(const HostSentence& sentence, std::string_view text, bool has_marks,
                 std::set<std::string>& lost, std::size_t text_begin = 0);

}  // namespace kavi

#endif  // KAVI_TTS_SSML_H

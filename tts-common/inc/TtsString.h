// The host's bounded string services. The engine calls safe_strncat only: a host with services of
// its own may leave tts_snprintf undefined.
#ifndef KAVI_TTS_STRING_H
#define KAVI_TTS_STRING_H

#include "kavi_compiler.h"

namespace kavi {

// Appends the first `n` characters of `src`, or all when `src` ends before, to the NUL-terminated
// text in `dst`, a buffer of `cap` bytes. 0 when they and the terminator fit. -1, with `dst`
// unchanged, when they do not fit, `dst` holds no terminator within `cap` bytes, `n` is negative or
// `cap` is not positive.
int safe_strncat(char* dst, const char* src, int n, int cap);

// Prints at most `size` bytes, terminator included, to `buf`. Returns the length of the whole text,
// which may be more than was written; negative when the format is faulty; -1, with nothing written,
// when `size` is not positive.
KAVI_PRINTF(3, 4) int tts_snprintf(char* buf, int size, const char* fmt, ...);

}  // namespace kavi

#endif  // KAVI_TTS_STRING_H

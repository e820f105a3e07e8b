// The host's bounded string services. The engine calls safe_strncat; a host with services of its
// own need not define tts_snprintf for it.
#ifndef KAVI_TTS_STRING_H
#define KAVI_TTS_STRING_H

namespace kavi {

// Appends the first `n` characters of `src` (fewer when `src` ends before) to the NUL-terminated
// text in `dst`, whose buffer holds `cap` bytes, and terminates it: all of them or none.
// 0 when the text and its terminator fit; -1 when they do not, when `dst` holds no terminator
// within `cap`, or when `n` is negative, and then `dst` is unchanged.
int safe_strncat(char* dst, const char* src, int n, int cap);

// Formatted print of at most `size` bytes, terminator included; always terminated when `size` is
// positive. The number of bytes the whole text has, or -1 when `size` is not positive (nothing is
// written then) or the format is faulty.
int tts_snprintf(char* buf, int size, const char* fmt, ...) __attribute__((format(printf, 3, 4)));

}  // namespace kavi

#endif  // KAVI_TTS_STRING_H

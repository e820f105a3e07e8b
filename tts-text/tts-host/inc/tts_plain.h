// Records as text that people read.
#ifndef KAVI_TTS_PLAIN_H
#define KAVI_TTS_PLAIN_H

#include <string>

#include "ShareObj.h"

namespace kavi {

// The words of one sentence with single blanks between them and their marks as punctuation. Marks
// that English does not write are left out, and so are pauses and markup. Quotation marks open and
// close in turn. Reads `records`, of which the first is the head record.
std::string plain_text(const UtteranceSyllable* records, int n_records);

}  // namespace kavi

#endif  // KAVI_TTS_PLAIN_H

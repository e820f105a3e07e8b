// The records of a sentence as a table that a person can read.
#ifndef KAVI_TOOL_WORD_TABLE_H
#define KAVI_TOOL_WORD_TABLE_H

#include <iosfwd>

#include "tts_host.h"

namespace kavi::tool {

// A row per word: word, pause, punctuation marks, break time and other attributes; the head record
// comes first where it holds marks. A blank line ends the table.
void write_word_table(std::ostream& out, const HostSentence& sentence);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_WORD_TABLE_H

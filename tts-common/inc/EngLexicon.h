// The host's English lexicon.
#ifndef KAVI_ENG_LEXICON_H
#define KAVI_ENG_LEXICON_H

namespace kavi {

// Looks the lower-case word up and writes what the lexicon holds for it, at most `out_size` bytes
// with the terminator, to `out`. A negative result means that the word is unknown.
int eng_lexicon_lookup(const char* word, char* out, int out_size);

}  // namespace kavi

#endif  // KAVI_ENG_LEXICON_H

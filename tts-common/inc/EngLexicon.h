// The host's English lexicon.
#ifndef KAVI_ENG_LEXICON_H
#define KAVI_ENG_LEXICON_H

namespace kavi {

// Looks up `word`, lower-case letters, and writes its entry to `out`: at most `out_size` bytes,
// terminator included. Negative when the word is unknown. The engine asks for words in capitals
// only and ignores the answer.
int eng_lexicon_lookup(const char* word, char* out, int out_size);

}  // namespace kavi

#endif  // KAVI_ENG_LEXICON_H

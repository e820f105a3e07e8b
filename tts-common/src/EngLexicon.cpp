#include "EngLexicon.h"

namespace kavi {

// A stand-in for hosts without a lexicon: it knows no word. The engine writes a word alike whether
// it is known or not.
int eng_lexicon_lookup(const char* /*word*/, char* out, int out_size) {
    if (out_size > 0) out[0] = '\0';
    return -1;
}

}  // namespace kavi

#include "EngLexicon.h"

namespace kavi {

// A stand-in for hosts without a lexicon: no word is known. The engine ignores the answer.
int eng_lexicon_lookup(const char* /*word*/, char* out, int out_size) {
    if (out_size > 0) out[0] = '\0';
    return -1;
}

}  // namespace kavi

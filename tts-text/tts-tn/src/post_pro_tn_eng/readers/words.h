// What kinds of word there are.
#ifndef KAVI_TN_WORDS_H
#define KAVI_TN_WORDS_H

#include <string_view>

namespace kavi::tn {

enum class WordKind {
    plain,            // spoken as it stands
    month,            // its full name is spoken
    telephone_label,  // "Tel", which may have a number after it
    capitals,         // spoken as it stands, too, but the lexicon is asked
};

// The kind of a section of letters.
WordKind word_kind(std::string_view word);

// Asks the lexicon about a word in capitals, of at most 499. As yet its answer makes no difference.
void ask_lexicon(std::string_view word);

}  // namespace kavi::tn

#endif  // KAVI_TN_WORDS_H

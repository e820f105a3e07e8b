// The words of a user's lexicon in a text, beside the rules: the user's own word wins.
#ifndef KAVI_EVERYDAY_OWN_WORDS_H
#define KAVI_EVERYDAY_OWN_WORDS_H

#include <cstddef>
#include <string_view>
#include <vector>

#include "rules.h"
#include "tts_lexicon.h"

namespace kavi::everyday {

// Goes through a text from its begin to its end; each token is looked for once.
class OwnWords {
  public:
    // The lexicon may be null.
    OwnWords(const Lexicon* lexicon, std::string_view text)
        : lexicon_(lexicon != nullptr && !lexicon->empty() ? lexicon : nullptr), text_(text) {}

    // The entry for what begins at an offset, or none.
    Lexicon::Match at(std::size_t at) {
        return lexicon_ != nullptr ? match_at(at) : Lexicon::Match();
    }

    // Whether a rule may read what it found at an offset: there is no entry in it, but for one for
    // the name that it found, which gets the user's word in its place: `entry` is set to
    // that one. Offsets do not go back.
    bool allow(std::size_t at, Found& found, const Lexicon::Entry*& entry);

    // Whether any of what was asked could be answered otherwise if the text had more at its end.
    bool reaches_end() const { return reaches_end_; }

  private:
    struct OwnWord {
        std::size_t at;
        Lexicon::Match match;
    };

    // Finds the entries that begin before `end` and forgets those before `begin`.
    void look_from(std::size_t begin, std::size_t end);
    Lexicon::Match match_at(std::size_t at);
    bool is_part_of_word(const OwnWord& word);

    const Lexicon* lexicon_;  // null for one without entries
    std::string_view text_;
    std::vector<OwnWord> words_;  // in order, not overlapping
    std::size_t looked_to_ = 0;
    bool reaches_end_ = false;
};

}  // namespace kavi::everyday

#endif  // KAVI_EVERYDAY_OWN_WORDS_H

// The filling pass over a text.
#ifndef KAVI_TN_WORD_FILLER_H
#define KAVI_TN_WORD_FILLER_H

#include "../common/bounded_text.h"
#include "post_pro_tn_eng.h"

namespace kavi {

// Stores the words that it is shown, with their marks and the attributes of the spans that enclose
// them, in the records from `n` on, and moves `n` past them. False: stop.
class WordFiller {
  public:
    // The chains begin empty: outside every span.
    WordFiller(PostProTnEng& engine, int& n, UtteranceSyllable* utt)
        : engine_(engine), n_(n), utt_(utt) {}

    // Takes the chains of the enclosing spans over. False when they are too long.
    bool enter(const char* values, const char* names) {
        return names_.append(names) && values_.append(values);
    }

    bool word(const char* word);
    bool punc(char* name) { return engine_.insert_punc(n_, utt_, name); }
    bool breaktime(char* value) { return engine_.insert_breaktime(n_, utt_, value); }
    bool span(const char* name, const char* value, char* content);

  private:
    static constexpr int CHAIN_SIZE = 200;

    PostProTnEng& engine_;
    int& n_;
    UtteranceSyllable* utt_;
    char tag_down_[CHAIN_SIZE] = {};    // names of the enclosing spans, outermost first, by tabs
    char value_down_[CHAIN_SIZE] = {};  // their values, likewise
    tn::BoundedText names_{tag_down_, CHAIN_SIZE};
    tn::BoundedText values_{value_down_, CHAIN_SIZE};
};

}  // namespace kavi

#endif  // KAVI_TN_WORD_FILLER_H

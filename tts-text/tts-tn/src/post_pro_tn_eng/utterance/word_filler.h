// The filling pass over a text.
#ifndef KAVI_TN_WORD_FILLER_H
#define KAVI_TN_WORD_FILLER_H

#include <optional>
#include <string_view>

#include "post_pro_tn_eng.h"

namespace kavi {

// Stores the words that it is shown, with their marks and the attributes of the spans that enclose
// them, in the records from `n` on, and moves `n` past them. False: stop.
class WordFiller {
  public:
    // Outside every span; the records are zero.
    WordFiller(PostProTnEng& engine, int& n, UtteranceSyllable* utt)
        : engine_(engine), n_(n), utt_(utt) {}

    // Goes into the innermost of a chain of spans. The texts stay the caller's.
    void enter(const char* names, const char* values);

    bool word(std::string_view word);
    bool punc(std::string_view name) { return engine_.insert_punc(n_, utt_, name); }
    bool breaktime(std::string_view value);
    bool span(std::string_view name, std::string_view value, char* content);

  private:
    PostProTnEng& engine_;
    int& n_;
    UtteranceSyllable* utt_;
    std::string_view names_;  // of the enclosing spans, outermost first, by tabs
    std::string_view values_;
    std::optional<CssmlTag> markup_;  // what they give each word
};

}  // namespace kavi

#endif  // KAVI_TN_WORD_FILLER_H

// The counting pass over a text.
#ifndef KAVI_TN_WORD_COUNTER_H
#define KAVI_TN_WORD_COUNTER_H

#include <string_view>

#include "post_pro_tn_eng.h"

namespace kavi {

// Adds the words that it is shown, and those of spans, to a count. Spans nested deeper than
// DEPTH_MAX are not counted: their words are never stored, since a chain of so many names is longer
// than any that can be.
class WordCounter {
  public:
    static constexpr int DEPTH_MAX = 64;

    WordCounter(PostProTnEng& engine, int& n, int depth) : engine_(engine), n_(n), depth_(depth) {}

    bool word(std::string_view /*word*/) {
        ++n_;
        return true;
    }
    bool punc(std::string_view /*name*/) { return true; }
    bool breaktime(std::string_view /*value*/) { return true; }
    bool span(std::string_view /*name*/, std::string_view /*value*/, char* content) {
        return depth_ == DEPTH_MAX || engine_.count_words(n_, content, depth_ + 1);
    }

  private:
    PostProTnEng& engine_;
    int& n_;
    int depth_;
};

}  // namespace kavi

#endif  // KAVI_TN_WORD_COUNTER_H

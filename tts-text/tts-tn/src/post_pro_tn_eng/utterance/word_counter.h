// The counting pass over a text.
#ifndef KAVI_TN_WORD_COUNTER_H
#define KAVI_TN_WORD_COUNTER_H

#include <string_view>

namespace kavi::tn {

// Spans nested deeper than this are not read: their words are never stored, since a chain of so
// many names is longer than any that can be.
constexpr int SPANS_NESTED_MAX = 64;

// Counts the words that it is shown, and those of spans.
class WordCounter {
  public:
    bool word(std::string_view /*word*/, const char* /*begin*/) {
        ++n_;
        return true;
    }
    void punc(std::string_view /*name*/) {}
    void breaktime(std::string_view /*value*/) {}

    bool enter(std::string_view /*name*/, std::string_view /*value*/) {
        ++depth_;
        return true;
    }
    bool is_too_deep() const { return depth_ > SPANS_NESTED_MAX; }
    void leave(const WordCounter& inside) { n_ = inside.n_; }

    int n() const { return n_; }

  private:
    int n_ = 0;
    int depth_ = 0;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_WORD_COUNTER_H

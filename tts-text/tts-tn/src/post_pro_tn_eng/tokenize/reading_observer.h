// Who looks on while a sentence is read.
#ifndef KAVI_TN_READING_OBSERVER_H
#define KAVI_TN_READING_OBSERVER_H

#include <string_view>

namespace kavi::tn {

class SectionDispatcher;

// Is shown what is read as what, in order: together it is the sentence, but for blanks. A reading
// is written where the one before it ends.
class ReadingObserver {
  public:
    // `source`, a word, a stretch of words or a mark that reads the same wherever it stands, was
    // written to the output, which is so long now.
    virtual void on_plain_text(std::string_view source, int output_length) = 0;

    virtual void on_step(const SectionDispatcher& step) = 0;

  protected:
    ~ReadingObserver() = default;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_READING_OBSERVER_H

// A sentence to its speakable text.
#ifndef KAVI_TN_TOKENIZE_H
#define KAVI_TN_TOKENIZE_H

#include "dispatcher.h"

namespace kavi::tn {

// Is shown every step of the dispatcher. Plain text takes none.
class StepObserver {
  public:
    virtual void on_step(const SectionDispatcher& step) = 0;

  protected:
    ~StepObserver() = default;
};

// What PostProTnEng::eng_text_tokenize does; `observer` may be null.
int tokenize(const char* sz_source_text, char* sz_target_text, StepObserver* observer);

// Leaves only letters and blanks outside tags, and no blank at the end.
void re_regular(char* sz_source_text);

}  // namespace kavi::tn

#endif  // KAVI_TN_TOKENIZE_H

// Marks as English writes them, word after word.
#ifndef KAVI_HOST_WRITTEN_MARKS_H
#define KAVI_HOST_WRITTEN_MARKS_H

#include <string>

#include "ShareObj.h"

namespace kavi::host {

class WrittenMarks {
  public:
    // Appends what is written after the word of a record; what opens is kept for the next word.
    void add(const UtteranceSyllable& record, std::string& text);

    // Appends what stands directly before the next word, or at the end of the sentence.
    void append_opening(std::string& text) {
        if (opening_.empty()) return;
        text += opening_;
        opening_.clear();
    }

  private:
    std::string opening_;
    bool is_quoted_ = false;
};

}  // namespace kavi::host

#endif  // KAVI_HOST_WRITTEN_MARKS_H

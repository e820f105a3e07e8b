// "Where is the next one?", asked again and again while a scan moves forward through one text.
#ifndef KAVI_TN_FORWARD_FINDER_H
#define KAVI_TN_FORWARD_FINDER_H

#include <cstring>

namespace kavi::tn {

// Remembers the last answer, so that all the searches of one scan together read the text once.
class ForwardFinder {
  public:
    // The first `needle` at or after `from`, or null. `from` never lies before that of an earlier
    // call, and the needle stays the same.
    const char* find(const char* from, const char* needle) {
        if (!exhausted_ && (found_ == nullptr || found_ < from)) {
            found_ = std::strstr(from, needle);
            exhausted_ = found_ == nullptr;
        }
        return found_;
    }

  private:
    const char* found_ = nullptr;
    bool exhausted_ = false;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_FORWARD_FINDER_H

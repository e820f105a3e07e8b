// "Where is the next one?", asked again and again while a scan moves forward through one text.
#ifndef KAVI_TN_FORWARD_FINDER_H
#define KAVI_TN_FORWARD_FINDER_H

#include <cstring>

namespace kavi::tn {

// Remembers the last answer, so that all the searches of one scan together read the text once.
class ForwardFinder {
  public:
    // The first `needle`, a character or a text, at or after `from`, or null. `from` never lies
    // before that of an earlier call, and the needle stays the same.
    template <typename Needle>
    const char* find(const char* from, Needle needle) {
        if (!exhausted_ && (found_ == nullptr || found_ < from)) {
            found_ = search(from, needle);
            exhausted_ = found_ == nullptr;
        }
        return found_;
    }

  private:
    static const char* search(const char* from, char needle) { return std::strchr(from, needle); }
    // The needles are a few characters long, of which the first is rare.
    static const char* search(const char* from, const char* needle) {
        for (; (from = std::strchr(from, *needle)) != nullptr; ++from) {
            std::size_t n = 1;
            while (needle[n] != '\0' && from[n] == needle[n]) ++n;
            if (needle[n] == '\0') break;
        }
        return from;
    }

    const char* found_ = nullptr;
    bool exhausted_ = false;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_FORWARD_FINDER_H

// Repeated searches for one needle from positions that move forward through a text.
#ifndef KAVI_TN_FORWARD_FINDER_H
#define KAVI_TN_FORWARD_FINDER_H

#include <cstring>

namespace kavi::tn {

// Remembers the last match: all searches of a scan together read the text once.
class ForwardFinder {
  public:
    // The first `needle`, a character or a NUL-terminated text, at or after `from`, or null. Each
    // call has the same needle and a `from` that is not before that of the last call.
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
    // Needles are short, and their first character is rare: strchr finds the candidates.
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

// Where a tag ends: at the first ">".
#ifndef KAVI_TN_TAG_ENDS_H
#define KAVI_TN_TAG_ENDS_H

#include <string_view>

#include "../common/forward_finder.h"

namespace kavi::tn {

// Serves one scan forward through one text, which it searches once.
class TagEnds {
  public:
    // From `text` through the next ">"; empty when there is none.
    std::string_view tag_at(const char* text) {
        const char* end = ends_.find(text, '>');
        if (end == nullptr) return {};
        return {text, static_cast<std::size_t>(end + 1 - text)};
    }

  private:
    ForwardFinder ends_;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_TAG_ENDS_H

// Where tags end.
#ifndef KAVI_TN_TAG_ENDS_H
#define KAVI_TN_TAG_ENDS_H

#include <string_view>

#include "../common/forward_finder.h"

namespace kavi::tn {

// The tags of one text: from a position through the next ">". The positions move forward from call
// to call, so the text is searched once.
class TagEnds {
  public:
    // The text from `text` through the next ">". Empty when there is none.
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

// The search for the abbreviation that a full stop ends.
#ifndef KAVI_TN_ABBREVIATION_H
#define KAVI_TN_ABBREVIATION_H

#include <array>
#include <cstddef>
#include <optional>

#include "../common/forward_finder.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

constexpr int NO_ABBREVIATION = -1;

// The offset of the first "." in the abbreviation of a row.
std::size_t dot_offset(int row);

// Serves one scan of one source text: remembers which case forms lie ahead, so that even a text
// made of near misses is searched once for each.
class AbbreviationSearch {
  public:
    AbbreviationSearch() {}  // not constant: that would clear the finders that few texts need

    // The row of the abbreviation whose first "." is the one at `dot`, or NO_ABBREVIATION.
    // `stretch` is where the search begins: at the start of the sentence, or after the last
    // abbreviation or decimal point; `dot` is the first "." from there on. Stretches move forward
    // from call to call.
    int find(const char* stretch, const char* dot);

  private:
    // Of a row that begins alike.
    bool is_accepted(int row, const char* stretch, const char* dot);

    static constexpr std::size_t CASE_FORMS = 4;  // as written, lower case, capitalised, capitals
    using Finders = std::array<ForwardFinder, ABBREVIATIONNUMBER * CASE_FORMS>;
    std::optional<Finders> ahead_;  // few texts need any
};

}  // namespace kavi::tn

#endif  // KAVI_TN_ABBREVIATION_H

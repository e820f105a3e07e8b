// The search for the abbreviation that a full stop ends.
#ifndef KAVI_TN_ABBREVIATION_H
#define KAVI_TN_ABBREVIATION_H

#include <array>
#include <cstddef>
#include <optional>

#include "../common/bounded_text.h"
#include "../common/forward_finder.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

// Serves one scan of one source text: remembers which case forms lie ahead, so that even a text
// made of near misses is searched once for each.
class AbbreviationSearch {
  public:
    // Expands the abbreviation that the full stop at `dot` ends, where `stretch` is where the
    // search begins, the end of the last abbreviation or decimal point; the contract of
    // PostProTnEng::abbreviation otherwise. Stretches move forward from call to call.
    char* expand(char* stretch, const char* dot, BoundedText& target, char& stop);

  private:
    bool is_accepted(std::size_t row, const char* stretch, const char* dot);

    static constexpr std::size_t CASE_FORMS = 4;  // as written, lower case, capitalised, capitals
    using Finders = std::array<ForwardFinder, ABBREVIATIONNUMBER * CASE_FORMS>;
    std::optional<Finders> ahead_;  // few texts need any
};

}  // namespace kavi::tn

#endif  // KAVI_TN_ABBREVIATION_H

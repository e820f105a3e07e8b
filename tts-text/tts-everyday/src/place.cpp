#include "place.h"

#include <algorithm>
#include <iterator>

namespace kavi::everyday {

namespace {

// Words that do not make what stands before them a part of a name: "a 5 km from here".
constexpr std::string_view NO_NOUNS[] = {"a",    "an",   "and",  "at", "but", "by",  "for",
                                         "from", "in",   "is",   "of", "off", "on",  "or",
                                         "per",  "than", "that", "to", "was", "with"};

}  // namespace

bool Place::is_before_noun(std::size_t ahead) const {
    const std::string_view article = word_before();
    const bool has_article = article == "a" || article == "A" || article == "an" || article == "An";
    if (!has_article || peek(ahead) != ' ' || !is_lower(peek(ahead + 1))) return false;
    const std::string_view word = letters(ahead + 1);
    return std::find(std::begin(NO_NOUNS), std::end(NO_NOUNS), word) == std::end(NO_NOUNS);
}

}  // namespace kavi::everyday

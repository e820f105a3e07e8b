// Text that reads the same wherever it stands, and is read without sections.
#ifndef KAVI_TN_PLAIN_TEXT_H
#define KAVI_TN_PLAIN_TEXT_H

#include <string_view>

#include "../common/bounded_text.h"
#include "../common/forward_finder.h"

namespace kavi::tn {

// Whether the letters, or whatever makes a section, are a word that no reader takes for more than
// that.
bool is_plain_word(std::string_view section);

// Appends the reading of the plain text at `text` (plain words, blanks, tags and most marks) and
// returns where that ends: at `text_end`, at what a reader has to look at, or where the
// output might be too small. `tag_ends` serves one pass over the text.
const char* read_plain_text(const char* text, const char* text_end, ForwardFinder& tag_ends,
                            BoundedText& output);

}  // namespace kavi::tn

#endif  // KAVI_TN_PLAIN_TEXT_H

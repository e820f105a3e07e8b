// The only private headers that everyday English may include: character classes, number words, and
// the markup tags that it does not touch.
#ifndef KAVI_TN_FOR_EVERYDAY_H
#define KAVI_TN_FOR_EVERYDAY_H

#include "common/ascii.h"          // IWYU pragma: export
#include "markup/markup_tags.h"    // IWYU pragma: export
#include "numbers/number_words.h"  // IWYU pragma: export

#endif  // KAVI_TN_FOR_EVERYDAY_H

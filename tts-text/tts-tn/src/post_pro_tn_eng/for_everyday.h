// What the layer before the engine may use of its inside, and nothing else: what a letter is, the
// words of numbers, and the markup tags that it leaves alone.
#ifndef KAVI_TN_FOR_EVERYDAY_H
#define KAVI_TN_FOR_EVERYDAY_H

#include "common/ascii.h"          // IWYU pragma: export
#include "markup/markup_tags.h"    // IWYU pragma: export
#include "numbers/number_words.h"  // IWYU pragma: export

#endif  // KAVI_TN_FOR_EVERYDAY_H

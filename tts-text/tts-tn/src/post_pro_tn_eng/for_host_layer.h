// The only private headers that the host layer may include: for cutting sentences, reading them
// step by step, listing the items of what was read and filling records with them, with the offsets
// that the layer reports, and for the markup tags.
#ifndef KAVI_TN_FOR_HOST_LAYER_H
#define KAVI_TN_FOR_HOST_LAYER_H

#include "common/ascii.h"               // IWYU pragma: export
#include "common/bounded_text.h"        // IWYU pragma: export
#include "common/limits.h"              // IWYU pragma: export
#include "markup/markup_tags.h"         // IWYU pragma: export
#include "sentence/sentence_cutter.h"   // IWYU pragma: export
#include "tokenize/reading_observer.h"  // IWYU pragma: export
#include "tokenize/tokenize.h"          // IWYU pragma: export
#include "utterance/text_events.h"      // IWYU pragma: export
#include "utterance/word_filler.h"      // IWYU pragma: export

#endif  // KAVI_TN_FOR_HOST_LAYER_H

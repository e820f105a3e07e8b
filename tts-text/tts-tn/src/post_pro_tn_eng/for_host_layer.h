// What the host layer may use of the engine's inside, and nothing else: how a sentence is cut and
// from what, how it is read step by step, the places of its words, and the markup tags of raw text.
#ifndef KAVI_TN_FOR_HOST_LAYER_H
#define KAVI_TN_FOR_HOST_LAYER_H

#include "common/ascii.h"               // IWYU pragma: export
#include "common/bounded_text.h"        // IWYU pragma: export
#include "common/limits.h"              // IWYU pragma: export
#include "markup/markup_tags.h"         // IWYU pragma: export
#include "sentence/sentence_cutter.h"   // IWYU pragma: export
#include "tokenize/reading_observer.h"  // IWYU pragma: export
#include "tokenize/tokenize.h"          // IWYU pragma: export
#include "utterance/builder.h"          // IWYU pragma: export

#endif  // KAVI_TN_FOR_HOST_LAYER_H

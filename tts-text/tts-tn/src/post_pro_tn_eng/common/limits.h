// Limits that follow from the sizes of the buffers.
#ifndef KAVI_TN_LIMITS_H
#define KAVI_TN_LIMITS_H

#include <cstddef>

#include "PostProcTN.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

// Characters of a word, a section, a kept tag or a reading, at most.
constexpr std::size_t WORD_LENGTH_MAX = WORD_MAX_LEN - 1;

// Characters of the opening tag of a span, at most, and the number of open spans.
constexpr std::size_t SAVED_TAG_MAX = sizeof SsmlTagArr::begin_tag_arr[0] - 1;
constexpr int OPEN_TAGS_MAX =
    static_cast<int>(sizeof SsmlTagArr::begin_tag_arr / sizeof SsmlTagArr::begin_tag_arr[0]);

// Characters of the list of names, or of values, of nested spans, with a tab between two of them.
// Any single span has room, since its tag is longer than its name or value.
constexpr std::size_t SPAN_CHAIN_MAX = SAVED_TAG_MAX;

// Characters of the name of a tag in speakable text, at most.
constexpr std::size_t TAG_NAME_MAX = MEMORY_SIZE_TAG_LABEL_TN - 1;

}  // namespace kavi::tn

#endif  // KAVI_TN_LIMITS_H

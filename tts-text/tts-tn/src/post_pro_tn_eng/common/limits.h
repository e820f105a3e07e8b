// Limits that follow from the sizes of the buffers.
#ifndef KAVI_TN_LIMITS_H
#define KAVI_TN_LIMITS_H

#include <cstddef>

#include "PostProcTN.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

// Characters of a word, a section, a kept tag or a reading.
constexpr std::size_t WORD_LENGTH_MAX = WORD_MAX_LEN - 1;

// Of an opening tag that is saved, and how many are.
constexpr std::size_t SAVED_TAG_MAX = sizeof SsmlTagArr::begin_tag_arr[0] - 1;
constexpr int OPEN_TAGS_MAX =
    static_cast<int>(sizeof SsmlTagArr::begin_tag_arr / sizeof SsmlTagArr::begin_tag_arr[0]);

// Of the names, or the values, of nested spans, with a tab between each two: any span whose tag is
// saved has room.
constexpr std::size_t SPAN_CHAIN_MAX = SAVED_TAG_MAX;

// Of the name of a tag of speakable text.
constexpr std::size_t TAG_NAME_MAX = MEMORY_SIZE_TAG_LABEL_TN - 1;

}  // namespace kavi::tn

#endif  // KAVI_TN_LIMITS_H

// Numbers of a sentence that were not read to their last digit.
#ifndef KAVI_HOST_NUMBER_FINDINGS_H
#define KAVI_HOST_NUMBER_FINDINGS_H

#include <string_view>
#include <vector>

#include "post_pro_tn_eng.h"
#include "tts_host.h"

namespace kavi::host {

// Walks over the sentence `normalized` (4096 bytes) again, if it has numbers that are long enough,
// and adds what it finds. `source` is the text that the sentence comes from, `offset` where it
// begins. What the arena refuses is not looked at. No telephone number behind "Tel." comes here,
// since that full stop ends a sentence.
void find_unread_numbers(PostProTnEng& engine, mem_stack_handle arena, char* normalized,
                         std::string_view source, std::size_t offset,
                         std::vector<Diagnostic>& diagnostics);

}  // namespace kavi::host

#endif  // KAVI_HOST_NUMBER_FINDINGS_H

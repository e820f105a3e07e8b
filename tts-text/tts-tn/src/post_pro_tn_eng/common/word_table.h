// Search in the {key, word} tables.
#ifndef KAVI_TN_WORD_TABLE_H
#define KAVI_TN_WORD_TABLE_H

#include <cstddef>
#include <string_view>

namespace kavi::tn {

// The word of the first row whose key is `key`, or null.
template <std::size_t Rows, std::size_t Width>
const char* find_word(const char (&table)[Rows][2][Width], std::string_view key) {
    if (key.empty()) return nullptr;
    for (const auto& row : table) {
        if (row[0][0] == key[0] && key == row[0]) return row[1];
    }
    return nullptr;
}

}  // namespace kavi::tn

#endif  // KAVI_TN_WORD_TABLE_H

#include "tables.h"

namespace kavi::everyday {

namespace {

const Row* find_longest_in(const Table& table, std::string_view text) {
    return find_longest(table,
                        [text](std::size_t at) { return at < text.size() ? text[at] : '\0'; });
}

}  // namespace

const Row* find_row_of(const Table& table, std::string_view written) {
    const Row* row = find_longest_in(table, written);
    return row != nullptr && row->written().size() == written.size() ? row : nullptr;
}

const Row* find_shorter(const Table& table, const Row& row) {
    return find_longest_in(table, row.written().substr(0, row.written().size() - 1));
}

}  // namespace kavi::everyday

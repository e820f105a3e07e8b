// The tables of everyday English. They are the text files in tables/, which say what their columns
// hold; make_tables.cmake makes everyday_text.h and everyday_tables.h of them.
#ifndef KAVI_EVERYDAY_TABLES_H
#define KAVI_EVERYDAY_TABLES_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace kavi::everyday {

// Where a row is read, or how; the head of each table says what its kinds mean.
enum class Kind : std::uint32_t {
    none,
    never,
    needed,
    may_end,
    inside,
    before_number,
    before_noun,
    before_name,
    before_date,
    after_ordinal,
    after_an,
    after_place,
    before,
    after,
    both,
    glued,
    anywhere,
    words,
    quantities,
    compared,
};

#include "everyday_text.h"

// A row has its columns one after the other in the text of all tables, NUL after each. A column
// that a table does not have is empty, and its kind is none. There are many rows: each is small,
// and has no pointer that would have to be relocated.
struct Row {
    std::uint32_t at : 15;      // in that text
    std::uint32_t length : 6;   // of what is written
    std::uint32_t many_at : 6;  // after `at`; at the NUL before it where there is no `many`
    Kind kind : 5;

    // Not empty; no two of a table are the same.
    constexpr std::string_view written() const { return {TEXT_OF_TABLES + at, length}; }
    // NUL after it, unless the row has a word for many that goes on with an "s".
    std::string_view spoken() const {
        const bool has_spoken = many_at > length;
        const unsigned spoken_at = length + (has_spoken ? 1U : 0U);
        const std::string_view words = TEXT_OF_TABLES + at + spoken_at;
        return words.substr(0, words.size() - (has_spoken && many_at == spoken_at ? 1 : 0));
    }
    const char* many() const { return TEXT_OF_TABLES + at + many_at; }
};
static_assert(sizeof(Row) == 4 && sizeof TEXT_OF_TABLES <= 1U << 15U);

// A bit of 64 for the first two bytes of a text that is not empty.
constexpr std::uint64_t bit_of_pair(std::string_view text) {
    constexpr unsigned FACTOR = 5;
    const auto first = static_cast<unsigned char>(text[0]);
    const auto second = static_cast<unsigned char>(text.size() > 1 ? text[1] : '\0');
    return std::uint64_t{1} << ((first * FACTOR + second) % 64);
}

// All rows of a table, in the order of what is written.
class Table {
  public:
    template <std::size_t N>
    constexpr Table(const Row (&rows)[N]) : first_(std::begin(rows)), end_(std::end(rows)) {
        for (const Row& row : rows) {
            begins_ |= bit_of(row.written()[0]);
            pairs_ |= bit_of_pair(row.written());
        }
    }

    constexpr const Row* begin() const { return first_; }
    constexpr const Row* end() const { return end_; }

    // False where no row begins with a byte.
    bool may_begin(char c) const { return (begins_ & bit_of(c)) != 0; }
    // False where no row is all of what is written; by its first two bytes, for most words.
    bool may_have(std::string_view written) const {
        return !written.empty() && (pairs_ & bit_of_pair(written)) != 0;
    }

  private:
    static constexpr std::uint64_t bit_of(char c) {
        return std::uint64_t{1} << (static_cast<unsigned char>(c) % 64);
    }

    const Row* first_;
    const Row* end_;
    std::uint64_t begins_ = 0;
    std::uint64_t pairs_ = 0;
};

// The longest row that a text begins with, or null. `byte_at` gives the text's byte at an offset,
// NUL after its end; it is asked for no byte after the first that no row has there.
template <typename ByteAt>
const Row* find_longest(const Table& table, ByteAt byte_at) {
    const char first = byte_at(0);
    if (!table.may_begin(first)) return nullptr;
    const auto byte_of = [](const Row& row) {
        return static_cast<unsigned char>(row.written()[0]);
    };
    const auto byte = static_cast<unsigned char>(first);
    const Row* row = std::partition_point(table.begin(), table.end(),
                                          [&](const Row& r) { return byte_of(r) < byte; });
    const Row* longest = nullptr;
    for (; row != table.end() && byte_of(*row) == byte; ++row) {
        std::size_t n_alike = 1;
        while (n_alike < row->written().size() && row->written()[n_alike] == byte_at(n_alike))
            ++n_alike;
        if (n_alike == row->written().size()) longest = row;
    }
    return longest;
}

// The row for all of what is written, or null.
const Row* find_row_of(const Table& table, std::string_view written);
inline const Row* find(const Table& table, std::string_view written) {
    return table.may_have(written) ? find_row_of(table, written) : nullptr;
}

// The longest row that is shorter than one, and that it begins with; or null.
const Row* find_shorter(const Table& table, const Row& row);

#include "everyday_tables.h"

}  // namespace kavi::everyday

#endif  // KAVI_EVERYDAY_TABLES_H

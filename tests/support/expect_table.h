#ifndef KAVI_TESTS_EXPECT_TABLE_H
#define KAVI_TESTS_EXPECT_TABLE_H

#include <gtest/gtest.h>

#include "table.h"

namespace kavi {

// Calls `make` with the first field of every row and expects the row that it makes.
template <typename Make>
void expect_table(const std::string& name, Make make) {
    for (const TableRow& row : read_table(name)) EXPECT_EQ(make(row[0]), row) << name;
}

}  // namespace kavi

#endif  // KAVI_TESTS_EXPECT_TABLE_H

#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "host_reader.h"

namespace kavi {
namespace {

TEST(Thread, HostsInTwoThreadsDoNotInterfere) {
    const auto text = [](int step) {
        std::string all;
        for (int i = 0; i < 1000; i += step) {
            all += "Dr. " + std::to_string(i) + " paid <py=a>$5.50</py> on 3/1/2020, ok? ";
        }
        return all;
    };
    const ReadText expected[] = {read_by_layer(text(1)), read_by_layer(text(2))};
    ReadText read[2];
    std::thread first([&] { read[0] = read_by_layer(text(1)); });
    std::thread second([&] { read[1] = read_by_layer(text(2)); });
    first.join();
    second.join();
    for (int i = 0; i < 2; ++i) EXPECT_EQ(read[i].records, expected[i].records);
}

}  // namespace
}  // namespace kavi

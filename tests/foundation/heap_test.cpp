// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/heap.h"
#include "foundation/memory.h"
#include "support/test.h"

#include <malloc.h>
#include <unistd.h>

namespace velm::test {
namespace {

TEST(Heap, WhatIsReservedTakesSmallAndLargeBlocksAndGetsThemBack) {
    constexpr std::size_t room = 24 << 20;
    constexpr std::int64_t sizes[] = {20'000, 90'000, 350'000, 1'100'000};
    const auto taken = [] { return std::pair(sbrk(0), mallinfo2().hblkhd); };
    reserveHeap(room);
    const auto before = taken();
    for (int round = 0; round < 2; ++round) {
        std::vector<char*> blocks;
        for (int i = 0; i < 60; ++i) { // 23.4 MB in all
            blocks.push_back(allocateAligned<char>(sizes[i % 4]));
        }
        EXPECT_EQ(taken(), before) << "in round " << round;
        for (char* const block : blocks) {
            freeAligned(block);
        }
        EXPECT_EQ(taken(), before) << "after round " << round;
    }
}

TEST(Heap, WhatIsReservedMayHaveLargePagesWhereTheSystemHasThem) {
    reserveHeap(std::size_t{4} << 20);
    std::ifstream maps("/proc/self/smaps");
    const std::string told(std::istreambuf_iterator<char>(maps), {});
    EXPECT_EQ(told.find(" hg ") != std::string::npos,
              std::filesystem::exists("/sys/kernel/mm/transparent_hugepage"));
}

} // namespace
} // namespace velm::test

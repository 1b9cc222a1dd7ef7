// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/random.h"
#include "support/capture_stdout.h"

#include <gtest/gtest.h>

namespace velm::test {
namespace {

constexpr std::int32_t (*draws[])(RANDOM*) = {RANDOM_next,       RANDOM_nextAdd,  RANDOM_nextDouble,
                                              RANDOM_nextSquare, RANDOM_nextFold, RANDOM_nextSpread,
                                              RANDOM_nextMix};

TEST(Random, FirstDrawsFromTheDefaults) {
    // Worked out by hand from counter 0x12345679, multiplier 33141, state 1.
    constexpr std::uint32_t counter = 0x12345679;
    constexpr std::uint32_t multiplier = (33141U * counter) & 0xFFFFFF;
    constexpr std::uint32_t square = (33141U * 33141U) & 0xFFFF;
    constexpr std::uint32_t folded = 1 ^ counter;
    constexpr std::uint32_t expected[] = {
        (1 + counter + multiplier) & 0xFFFFFF, (1 + counter) & 0xFFFFFF, (2 + counter) & 0xFFFFFF,
        1 ^ counter ^ square ^ 0x1FFFFFE,      folded ^ (folded >> 16),  folded * 0x10001U,
        (folded + counter) * counter};
    for (std::size_t i = 0; i < std::size(draws); ++i) {
        RANDOM* random = RANDOM_new();
        EXPECT_EQ(static_cast<std::uint32_t>(draws[i](random)), expected[i]) << i;
        EXPECT_EQ(random->counter, counter);
        RANDOM_delete(&random);
    }
}

TEST(Random, RANDOM_cloneForgets) {
    RANDOM* random = RANDOM_new();
    const std::int32_t first = RANDOM_next(random);
    RANDOM* clone = RANDOM_clone(random);
    EXPECT_EQ(RANDOM_next(clone), first);
    EXPECT_NE(RANDOM_next(random), first);
    RANDOM_delete(&random);
    RANDOM_delete(&clone);
}

TEST(Random, DrawsStayIn24BitsForLong) {
    RANDOM* random = RANDOM_new();
    for (int i = 0; i < 100000; ++i) {
        ASSERT_EQ(RANDOM_next(random) & ~0xFFFFFF, 0);
    }
    RANDOM_delete(&random);
}

TEST(Random, AMissingRecordIsReported) {
    RANDOM_verbose = 1;
    for (const auto draw : draws) {
        EXPECT_EQ(printedBy([draw] { EXPECT_EQ(draw(nullptr), 0); }), "RANDOM error\n");
    }
    RANDOM_verbose = 0;
}

} // namespace
} // namespace velm::test

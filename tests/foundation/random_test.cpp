// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/chance.h"
#include "foundation/random.h"
#include "support/owned.h"
#include "support/test.h"

namespace velm::test {
namespace {

constexpr std::int32_t (*draws[])(RANDOM*) = {RANDOM_next,       RANDOM_nextAdd,  RANDOM_nextDouble,
                                              RANDOM_nextSquare, RANDOM_nextFold, RANDOM_nextSpread,
                                              RANDOM_nextMix};

TEST(Random, MixedDrawsFromTheDefaults) {
    const Owned<RANDOM_delete> random(RANDOM_new());
    std::uint32_t digest = 0;
    for (const char draw : std::string_view("056642534342210311056")) {
        digest = digest * 31 + static_cast<std::uint32_t>(draws[draw - '0'](random));
    }
    // The numbers come from a transcription of the rules in another language.
    EXPECT_EQ(digest, 0x22980C1EU);
    EXPECT_EQ(random->counter, 0x1234568DU);
    EXPECT_EQ(random->multiplier, 0xDFED43U);
    EXPECT_EQ(random->mask, 0x7FFFFF80U);
    EXPECT_EQ(random->state, 0xAA94358FU);
}

TEST(Random, BoundsAreKept) {
    const Owned<RANDOM_delete> random(RANDOM_new());
    std::int32_t seen = 0;
    for (std::int32_t i = 0; i < 200; ++i) {
        seen |= 1 << RANDOM_below(random, 5);
        EXPECT_EQ(RANDOM_below(random, i % 2 == 0 ? 1 : -7), 0);
    }
    EXPECT_EQ(seen, 0x1F) << "0 to 4, each of them";
    std::int32_t steps = 0;
    for (std::int32_t number = -8; number < 0; ++number) {
        steps |= 1 << (RANDOM_eitherWay(number) + 4);
    }
    EXPECT_EQ(steps, 0x1EF) << "-4 to 4, but not 0";
}

TEST(Random, RANDOM_cloneForgets) {
    const Owned<RANDOM_delete> random(RANDOM_new());
    const std::int32_t first = RANDOM_next(random);
    const Owned<RANDOM_delete> clone(RANDOM_clone(random));
    EXPECT_EQ(RANDOM_next(clone), first);
    EXPECT_NE(RANDOM_next(random), first);
}

TEST(Random, AMissingRecordIsReported) {
    for (const auto draw : draws) {
        expectReports(RANDOM_verbose, 1, "RANDOM error", [draw] { EXPECT_EQ(draw(nullptr), 0); });
    }
}

TEST(Chance, DrawsTheNumbersOfTheGnuLibrary) {
#ifdef __GLIBC__
    for (const unsigned int seed : {0U, 1U, 8810U, 273880913U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        chanceSeed(seed);
        srandom(seed);
        for (int i = 0; i < 1000000; ++i) {
            ASSERT_EQ(chance(), random()) << "draw " << i << " of seed " << seed;
        }
    }
#endif
    chanceSeed(1); // what the first draws are where there is no such library to ask
    EXPECT_EQ(chance(), 1804289383);
    EXPECT_EQ(chance(), 846930886);
}

} // namespace
} // namespace velm::test

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The program's chance against the generator of the GNU C library, whose numbers it has drawn from the first
// day on.
#include "foundation/chance.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace velm::test {

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

} // namespace velm::test

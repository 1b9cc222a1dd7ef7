// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/gain.h"
#include "support/test.h"

namespace velm {
namespace {

TEST(GainTest, RoundsAndStopsAtTheEndsOf16Bits) {
    std::vector<std::int16_t> samples = {0, 1, -1, 1000, -1000, 8230, 8231, -8231, -8232, 32767, -32768};
    GAIN_apply(samples, GAIN_factor(12)); // 3.98107
    EXPECT_EQ(samples, (std::vector<std::int16_t>{0, 4, -4, 3981, -3981, 32764, 32767, -32768, -32768, 32767,
                                                  -32768}));
}

TEST(GainTest, NoDecibelsLeaveEverySampleAsItIs) {
    std::vector<std::int16_t> samples(65536);
    std::iota(samples.begin(), samples.end(), std::numeric_limits<std::int16_t>::min());
    const auto before = samples;
    GAIN_apply(samples, GAIN_factor(0));
    EXPECT_EQ(samples, before);
}

} // namespace
} // namespace velm

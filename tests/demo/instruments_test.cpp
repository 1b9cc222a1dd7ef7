// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/instruments.h"
#include "foundation/chance.h"
#include "foundation/list.h"
#include "foundation/owned.h"

#include <gtest/gtest.h>
#include <vector>

namespace velm::test {
namespace {

/// FNV-1a over the words of all instruments.
std::uint32_t checksum(const MUSIC* music) {
    std::uint32_t sum = 2166136261U;
    for (std::int32_t i = 0; i < music->instruments->count; ++i) {
        const auto* instrument = static_cast<const SAMPLE*>(LIST_get(music->instruments, i));
        for (std::int32_t k = 0; k < instrument->length; ++k) {
            sum = (sum ^ static_cast<std::uint32_t>(instrument->data[k])) * 16777619U;
        }
    }
    return sum;
}

TEST(Instruments, TheBankIsTheSameToTheBit) {
    chanceSeed(273880913);
    const Owned<MUSIC_delete> music(VELM4030_buildMusic());
    EXPECT_EQ(chance(), 86123232) << "the next draw of whoever comes after the bank";
    EXPECT_EQ(music->period, 360);
    ASSERT_EQ(music->instruments->count, 120);
    const std::int32_t lengths[] = {22050, 22050, 22050, 22050, 22050, 22050, 11025, 44100, 88200, 44100};
    for (std::int32_t i = 0; i < 120; ++i) {
        const auto* instrument = static_cast<const SAMPLE*>(LIST_get(music->instruments, i));
        EXPECT_EQ(instrument->length, lengths[i / 12]) << i;
        const std::int32_t peak = std::max(SAMPLE_max(instrument), -SAMPLE_min(instrument));
        EXPECT_GT(peak, 1000) << i;
        EXPECT_LE(peak, 32000) << i;
    }
    EXPECT_EQ(checksum(music), 0x04C77F08U);
}

} // namespace
} // namespace velm::test

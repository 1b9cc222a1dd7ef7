// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/byte_order.h"

#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>

namespace velm::test {
namespace {

TEST(ByteOrder, LowByteFirstOnEveryMachine) {
    const std::int16_t sample = lowByteFirst<std::int16_t>(-2);
    const std::uint32_t pixel = lowByteFirst<std::uint32_t>(0x00C08040);
    EXPECT_EQ(std::memcmp(&sample, "\xFE\xFF", 2), 0);
    EXPECT_EQ(std::memcmp(&pixel, "\x40\x80\xC0\x00", 4), 0);
    EXPECT_EQ(lowByteFirst<std::int16_t>(-2, std::endian::big), -257);
    EXPECT_EQ(lowByteFirst<std::int16_t>(0x1280, std::endian::big), static_cast<std::int16_t>(0x8012));
    EXPECT_EQ(lowByteFirst<std::uint32_t>(0x00C08040, std::endian::big), 0x4080C000U);
}

} // namespace
} // namespace velm::test

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/byte_order.h"
#include "foundation/int.h"
#include "support/test.h"

namespace velm::test {
namespace {

constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();

TEST(Int, PrintsBitsAndCountsThem) {
    EXPECT_EQ(printedBy([] { INT_printBinary(5); }), "00000000000000000000000000000101");
    EXPECT_EQ(printedBy([] { INT_printBinary(least + 2); }), "10000000000000000000000000000010");
    const std::pair<std::int32_t, std::int32_t> lengths[] = {{0, 0},   {-1, 0},  {least, 0},   {1, 1},
                                                             {255, 8}, {256, 9}, {~least, 31}, {2, 2}};
    for (const auto& [value, length] : lengths) {
        EXPECT_EQ(INT_bitLength(value), length) << value;
    }
    EXPECT_EQ(INT_abs(-7) + INT_abs(7), 14);
    EXPECT_EQ(INT_abs(least), least) << "its opposite does not fit";
}

TEST(Int, INT_sqrtReportsZeroAndINT_errorAlwaysPrints) {
    EXPECT_EQ(printedBy([] { EXPECT_EQ(INT_sqrt(0), 0); }), "INT: ERROR.\n");
}

TEST(Int, INT_sqrtHighBit) {
    for (std::uint32_t root = 1; root <= 46340; ++root) {
        const auto expected = static_cast<std::int32_t>(root);
        ASSERT_EQ(INT_sqrt(root * root), expected);
        ASSERT_EQ(INT_sqrt(root * root + 2 * root - (root == 46340 ? 46340 : 0)), expected);
    }
    EXPECT_EQ(INT_sqrt(0x7FFFFFFF), 46340);
    EXPECT_EQ(INT_sqrt(0x80000000), 1);
    EXPECT_EQ(INT_sqrt(0xFFFFFFFF), 1);
}

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

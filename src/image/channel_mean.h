// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The mean of many channels, by a product instead of a division.
//
//     const ChannelMean mean(41);
//     mean(41 * 255); // 255
#pragma once

#include <bit>
#include <cstdint>

namespace velm {

/// Divides sums of `count` channels by their number, and rounds down. The reciprocal fills 16 bits. It is
/// rounded up where that makes no quotient larger; else down, and one is added to the sum.
struct ChannelMean {
    static constexpr std::int32_t mostChannels = 257; ///< whose sum 16 bits hold

    std::uint16_t reciprocal = 0;
    std::uint16_t addend = 0;
    std::uint8_t shift;

    /// For 1 to mostChannels channels.
    constexpr explicit ChannelMean(std::int32_t count)
        : shift(static_cast<std::uint8_t>(std::bit_width(static_cast<std::uint32_t>(count)) - 1)) {
        const std::int64_t one = std::int64_t{0x10000} << shift;
        const std::int64_t above = one / count + 1;
        const bool isExact = above <= 0xFFFF && (above * count - one) * 255 * count < one;
        reciprocal = static_cast<std::uint16_t>(isExact ? above : (one - 1) / count);
        addend = isExact ? 0 : 1;
    }

    constexpr std::uint16_t operator()(std::uint16_t sum) const {
        const auto dividend = static_cast<std::uint16_t>(sum + addend);
        const auto product = static_cast<std::uint16_t>(std::uint32_t{dividend} * reciprocal >> 16);
        return static_cast<std::uint16_t>(product >> shift);
    }
};

} // namespace velm

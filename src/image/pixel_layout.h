// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// How a screen stores a pixel, where that is not 0x00RRGGBB as ours.
//
//     const PixelLayout thousands(2, 0xF800, 0x07E0, 0x001F);
//     const std::uint32_t stored = thousands.of(0xFF8040); // 0xFC08
#pragma once

#include <cstdint>

namespace velm {

struct PixelLayout {
    /// Where a colour stands in a pixel, and how many bits it has there.
    struct Channel {
        std::int32_t shift, bits;
        explicit Channel(std::uint32_t mask);
        bool operator==(const Channel&) const = default;
    };

    std::int32_t bytes; ///< 1..4
    Channel red, green, blue;

    PixelLayout(std::int32_t pixelBytes, std::uint32_t redMask, std::uint32_t greenMask,
                std::uint32_t blueMask)
        : bytes(pixelBytes), red(redMask), green(greenMask), blue(blueMask) {}
    bool operator==(const PixelLayout&) const = default;

    /// True when a word of such pixels is a word of ours.
    [[nodiscard]] bool isOurs() const;

    /// A pixel of ours in this layout: fewer bits drop the low ones, more bits repeat the high ones.
    [[nodiscard]] std::uint32_t of(std::uint32_t pixel) const;
};

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "image/pixel_layout.h"

#include <bit>

namespace velm {

namespace {

std::uint32_t fitted(std::uint32_t value, PixelLayout::Channel channel) {
    const std::uint32_t fit = channel.bits <= 8 ? value >> (8 - channel.bits)
                                                : value << (channel.bits - 8) | value >> (16 - channel.bits);
    return fit << channel.shift;
}

} // namespace

PixelLayout::Channel::Channel(std::uint32_t mask)
    : shift(std::countr_zero(mask)), bits(std::popcount(mask)) {}

bool PixelLayout::isOurs() const {
    return *this == PixelLayout(4, 0xFF0000, 0x00FF00, 0x0000FF);
}

std::uint32_t PixelLayout::of(std::uint32_t pixel) const {
    return fitted(pixel >> 16 & 0xFF, red) | fitted(pixel >> 8 & 0xFF, green) | fitted(pixel & 0xFF, blue);
}

} // namespace velm

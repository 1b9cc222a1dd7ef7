// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The filters of IMGFX on registers of 256 bits, eight pixels at a time: the same pixels as their plain rules
// make, to the bit. Each returns true when it has filtered; where the processor that it meets has no such
// registers it leaves everything to the plain rule.
//
//     if (!wideBlur(*src, *dst)) {
//         // pixel by pixel
//     }
//
// `src` and `dst` are different images that have pixels.
#pragma once

#include <cstdint>

namespace velm {

struct IMG;

bool wideBlur(const IMG& src, IMG& dst);
bool wideBlur7(const IMG& src, IMG& dst);

/// The radius is 0 or more. False, too, for one above 128: 16 bits hold the sums of 257 channels.
bool wideBlurRadius(const IMG& src, IMG& dst, std::int32_t radius);

/// The neighbours are shifted down by `bits`, 0..31.
bool wideGlare(const IMG& src, IMG& dst, std::uint32_t bits);
bool wideGlare8(const IMG& src, IMG& dst, std::uint32_t bits);

} // namespace velm

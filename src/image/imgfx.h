// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// IMGFX: operations that combine two images or filter one into another, per 8-bit channel.
//
//     IMGFX_glare(screen, glareImage, 3);
//     IMGFX_blur(glareImage, blurImage);
#pragma once

#include "foundation/identity.h"
#include "image/img.h"

#include <cstdint>

namespace velm {

extern const IDENTITY IMGFX_identity;
extern std::uint8_t IMGFX_verbose;

/// dst := min(255, dst + src) over a rectangle that is clipped as IMG_blit clips it.
void IMGFX_addBlit(const IMG* src, IMG* dst, std::int32_t srcX, std::int32_t srcY, std::int32_t dstX,
                   std::int32_t dstY, std::int32_t w, std::int32_t h);

/// dst := src / 2 + dst / 2, both halves rounded down, where src is not 0; clipped as IMG_blit clips it.
void IMGFX_averageBlit(const IMG* src, IMG* dst, std::int32_t srcX, std::int32_t srcY, std::int32_t dstX,
                       std::int32_t dstY, std::int32_t w, std::int32_t h);

/// Every pixel becomes its complement in the low 24 bits.
void IMGFX_invert(IMG* img);

/// Five taps along the row: (a + b + 4 * centre + e + f) >> 3. What lies outside counts as black, so the left
/// and right edges darken. `src` and `dst` must be different images; the same one is reported.
void IMGFX_blur(const IMG* src, IMG* dst);

/// Three taps along the row: min(255, centre + (left >> shift) + (right >> shift)), shift 0..31. `src` and
/// `dst` must be different images; the same one is reported.
void IMGFX_glare(const IMG* src, IMG* dst, std::int32_t shift);

/// One pixel := min(255, pixel + colour); coordinates outside are ignored. A missing image is reported by
/// IMG_error.
void IMGFX_addPixel(IMG* img, std::int32_t x, std::int32_t y, std::uint32_t colour);

/// Prints "IMGFX error" while IMGFX_verbose is set.
void IMGFX_error();

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// IMGFX: operations that combine two images or filter one into another, per 8-bit channel.
//
//     IMGFX_glare(screen, glareImage, 3);
//     IMGFX_blur(glareImage, blurImage);
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct IMG;

extern const IDENTITY IMGFX_identity;
extern std::uint8_t IMGFX_verbose;

/// The widest blur of IMGFX_blurRadius reaches this many pixels to either side.
inline constexpr std::int32_t IMGFX_largestRadius = 1023;

/// dst := src, black included, over a rectangle that is clipped as IMG_blit clips it.
void IMGFX_opaqueBlit(const IMG* src, IMG* dst, std::int32_t srcX, std::int32_t srcY, std::int32_t dstX,
                      std::int32_t dstY, std::int32_t w, std::int32_t h);

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

/// Seven taps along the row: (the six neighbours + 2 * centre) >> 3. Edges and images as with IMGFX_blur.
void IMGFX_blur7(const IMG* src, IMG* dst);

/// The mean, rounded down, of the 2 * radius + 1 pixels around each pixel of a row; a radius of 0 copies.
/// Radii up to 128 cost the same, larger ones about three times as much; one outside 0..IMGFX_largestRadius
/// is reported. Edges and images as with IMGFX_blur.
void IMGFX_blurRadius(const IMG* src, IMG* dst, std::int32_t radius);

/// Three taps along the row: min(255, centre + (left >> shift) + (right >> shift)), shift 0..31. `src` and
/// `dst` must be different images; the same one is reported.
void IMGFX_glare(const IMG* src, IMG* dst, std::int32_t shift);

/// Nine taps: min(255, centre + each of the eight neighbours >> shift), shift 0..31. What lies outside counts
/// as black. `src` and `dst` must be different images; the same one is reported.
void IMGFX_glare8(const IMG* src, IMG* dst, std::int32_t shift);

/// The pixels of IMG_drawLine, each := min(255, pixel + colour).
void IMGFX_addLine(IMG* img, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                   std::uint32_t colour);

/// The pixels of IMG_drawLine, each := (pixel + colour) >> 1.
void IMGFX_averageLine(IMG* img, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                       std::uint32_t colour);

/// One pixel := min(255, pixel + colour); coordinates outside are ignored. A missing image is reported by
/// IMG_error.
void IMGFX_addPixel(IMG* img, std::int32_t x, std::int32_t y, std::uint32_t colour);

/// Prints "IMGFX error" while IMGFX_verbose is set.
void IMGFX_error();

} // namespace velm

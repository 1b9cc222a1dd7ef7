// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// IMG, the one picture type: a rectangle of 0x00RRGGBB pixels, row-major, pixel (x, y) at index x + y *
// width, (0, 0) the top-left corner. Drawing outside an image is clipped silently. Pixel value 0 is the
// transparent value of every copy that is called transparent.
//
//     IMG* picture = IMG_fromPNM(bytes, count);
//     IMG_blit(picture, screen, 0, 0, 64, 96, picture->width, picture->height);
//     IMG_delete(&picture);
#pragma once

#include "foundation/identity.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace velm {

struct IMG {
    std::int32_t x = 0;              ///< placement column used by IMG_draw
    std::int32_t y = 0;              ///< placement row used by IMG_draw
    std::int32_t width = 16;         ///< pixels per row
    std::int32_t height = 16;        ///< number of rows
    std::uint32_t* pixels = nullptr; ///< owned (freeAligned), width * height words; 0 when new
};

/// True when there is an image to draw into or to copy from.
[[nodiscard]] inline bool hasPixels(const IMG* img) {
    return img != nullptr && img->pixels != nullptr;
}

/// The pixels of a row of an image, y from 0; those of row `height` begin where the image ends.
[[nodiscard]] inline std::uint32_t* rowOf(const IMG& img, std::int64_t y) {
    return img.pixels + y * img.width;
}

/// True for a place inside an image.
[[nodiscard]] inline bool contains(const IMG& img, std::int64_t x, std::int64_t y) {
    return x >= 0 && y >= 0 && x < img.width && y < img.height;
}

/// All pixels of an image, row after row.
[[nodiscard]] inline std::span<std::uint32_t> pixelsOf(const IMG& img) {
    return {img.pixels, static_cast<std::size_t>(img.width) * static_cast<std::size_t>(img.height)};
}

extern const IDENTITY IMG_identity;
extern std::uint8_t IMG_verbose;

/// A black image of the default size, or nullptr (reported).
IMG* IMG_new();

/// A black image of `width` by `height`, or nullptr (reported).
IMG* IMG_newSized(std::int32_t width, std::int32_t height);

/// Makes the image `width` by `height` black pixels (each >= 0). On failure it reports and leaves the image
/// as it was.
void IMG_setSize(IMG* img, std::int32_t width, std::int32_t height);

/// A new image with the size and the pixels of `src`, or nullptr.
IMG* IMG_clone(const IMG* src);

/// Frees the pixels and the record and stores nullptr in the handle.
void IMG_delete(IMG** handle);

/// Sets every pixel.
void IMG_fill(IMG* img, std::uint32_t colour);

/// Copies all pixels; different sizes are reported and nothing is copied.
void IMG_copy(const IMG* src, IMG* dst);

/// Sets one pixel; coordinates outside are ignored.
void IMG_putPixel(IMG* img, std::int32_t x, std::int32_t y, std::uint32_t colour);

/// Reads one pixel; 0 outside.
std::uint32_t IMG_getPixel(const IMG* img, std::int32_t x, std::int32_t y);

/// Copies the w by h rectangle at (srcX, srcY) to (dstX, dstY), clipped to both images; 0 pixels are
/// transparent. A negative source corner shifts the destination by the same amount.
void IMG_blit(const IMG* src, IMG* dst, std::int32_t srcX, std::int32_t srcY, std::int32_t dstX,
              std::int32_t dstY, std::int32_t w, std::int32_t h);

/// Copies all of `src` to its own place (src.x, src.y) in `dst`; 0 pixels are transparent.
void IMG_draw(const IMG* src, IMG* dst);

/// Copies row `srcRow` onto row `dstRow`, starting at column `offset` modulo the destination's width and
/// going on at the left edge; 0 pixels are transparent. At most one destination row is covered.
void IMG_copyRowWrapped(const IMG* src, IMG* dst, std::int32_t srcRow, std::int32_t dstRow,
                        std::int32_t offset);

/// The same along a column, starting at row `offset` modulo the destination's height.
void IMG_copyColumnWrapped(const IMG* src, IMG* dst, std::int32_t srcColumn, std::int32_t dstColumn,
                           std::int32_t offset);

/// dst := dst AND mask, pixel by pixel in memory order. Both must have the same size; where they differ, only
/// the pixels that both have are touched.
void IMG_andMask(const IMG* mask, IMG* dst);

/// Adds `colour` to every pixel, each channel stopping at 255.
void IMG_addColour(IMG* img, std::uint32_t colour);

/// Subtracts `colour` from every pixel, each channel stopping at 0.
void IMG_subColour(IMG* img, std::uint32_t colour);

/// Fills a rectangle, clipped. A negative w or h extends it to the left or upwards.
void IMG_fillRect(IMG* img, std::int32_t x, std::int32_t y, std::int32_t w, std::int32_t h,
                  std::uint32_t colour);

/// Draws a line of single pixels, both ends included (Bresenham). A half step rounds early: see
/// docs/quirks.md.
void IMG_drawLine(IMG* img, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                  std::uint32_t colour);

/// Sets pixels x1..x2 of row y, clipped; nothing when x1 > x2.
void IMG_drawHLine(IMG* img, std::uint32_t colour, std::int32_t y, std::int32_t x1, std::int32_t x2);

/// Sets pixels y1..y2 of column x, clipped; nothing when y1 > y2.
void IMG_drawVLine(IMG* img, std::uint32_t colour, std::int32_t x, std::int32_t y1, std::int32_t y2);

/// As IMG_drawHLine, each channel becoming (colour * alpha + old * (256 - alpha)) >> 8, alpha 0..256.
void IMG_blendHLine(IMG* img, std::uint32_t colour, std::int32_t y, std::int32_t x1, std::int32_t x2,
                    std::uint32_t alpha);

/// Decodes a netpbm picture, P1 to P6, of `count` bytes; nothing past them is read. Samples are taken as
/// 8-bit values as they stand. Set bits of bitmaps are white, and a bitmap's width is rounded up to a
/// multiple of 8 (see docs/quirks.md). nullptr (reported) when it is malformed or cut short.
IMG* IMG_fromPNM(const char* bytes, std::size_t count);

/// The same without a size: a NUL ends the header and the text types; binary samples must be complete.
IMG* IMG_fromPNM(const char* bytes);

/// Writes a binary P6 file: 1, or 0 (reported) when the image is empty or the file cannot be written whole.
std::int32_t IMG_writePPM(const IMG* img, const char* path);

/// The image as text, "IMG{\nP3\n...}\n" with six pixels a line, or "IMG{}" when it is empty; nullptr on
/// failure. The caller frees it with delete[].
char* IMG_toText(const IMG* img);

/// Reads what IMG_toText writes; nullptr (reported) when it is malformed or cut short.
IMG* IMG_fromText(const char* text);

/// The index just past the first match of `needle`, or 0. Restarts oddly after a mismatch: see
/// docs/quirks.md.
std::int32_t IMG_findAfter(const char* haystack, const char* needle);

/// 1 when both have the same size and pixels, else 0. Equal images are reported, too: see docs/quirks.md.
std::int32_t IMG_equal(const IMG* a, const IMG* b);

/// Prints "IMG error" while IMG_verbose is set.
void IMG_error();

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Every loop that runs over whole rows against the plain rule, pixel by pixel, on random images and
// rectangles.
#include "image/img.h"
#include "image/imgfx.h"
#include "support/images.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

namespace velm::test {
namespace {

constexpr std::uint32_t rounds = 3000;

std::uint32_t perChannel(std::uint32_t a, std::uint32_t b, std::int32_t (*rule)(std::int32_t, std::int32_t)) {
    std::uint32_t result = 0;
    for (const int shift : {0, 8, 16}) {
        const auto channel = [shift](std::uint32_t c) {
            return static_cast<std::int32_t>((c >> shift) & 255);
        };
        result |= static_cast<std::uint32_t>(rule(channel(a), channel(b))) << shift;
    }
    return result;
}

std::uint32_t plainAdd(std::uint32_t a, std::uint32_t b) {
    return perChannel(a, b, [](std::int32_t x, std::int32_t y) { return std::min(255, x + y); });
}

std::uint32_t plainSub(std::uint32_t a, std::uint32_t b) {
    return perChannel(a, b, [](std::int32_t x, std::int32_t y) { return std::max(0, x - y); });
}

struct Rectangle {
    std::int32_t sx, sy, dx, dy, w, h;
};

/// The rule of every rectangle copy: walk the wanted rectangle and leave out what lies outside either image.
void plainBlit(const IMG* src, IMG* dst, Rectangle r, std::uint32_t (*mix)(std::uint32_t, std::uint32_t)) {
    for (std::int32_t y = 0; y < r.h; ++y) {
        for (std::int32_t x = 0; x < r.w; ++x) {
            const bool inside =
                r.sx + x >= 0 && r.sx + x < src->width && r.sy + y >= 0 && r.sy + y < src->height;
            if (inside) {
                // A negative source corner moves the destination along, which this walk does by itself.
                const std::uint32_t pixel = IMG_getPixel(src, r.sx + x, r.sy + y);
                IMG_putPixel(dst, r.dx + x, r.dy + y, mix(pixel, IMG_getPixel(dst, r.dx + x, r.dy + y)));
            }
        }
    }
}

using Blit = void (*)(const IMG*, IMG*, std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                      std::int32_t);

void compareBlit(Blit fast, std::uint32_t (*mix)(std::uint32_t, std::uint32_t)) {
    std::uint32_t changed = 0;
    for (std::uint32_t seed = 1; seed <= rounds; ++seed) {
        Images images(seed);
        IMG* src = images.image();
        IMG* actual = images.image();
        IMG* expected = IMG_clone(actual);
        IMG* before = IMG_clone(actual);
        const auto corner = [&images] { return images.number(-12, 25); };
        const Rectangle r = {
            corner(), corner(), corner(), corner(), images.number(-3, 60), images.number(-3, 60)};
        fast(src, actual, r.sx, r.sy, r.dx, r.dy, r.w, r.h);
        plainBlit(src, expected, r, mix);
        EXPECT_EQ(difference(actual, expected), "") << "seed " << seed;
        changed += difference(actual, before).empty() ? 0 : 1;
        for (IMG* img : {src, actual, expected, before}) {
            IMG_delete(&img);
        }
    }
    EXPECT_GT(changed, rounds / 5) << "most rectangles missed: nothing was compared";
}

TEST(Blit, TransparentCopyEqualsThePlainRule) {
    compareBlit(IMG_blit, [](std::uint32_t s, std::uint32_t d) { return s != 0 ? s : d; });
}

TEST(Blit, AdditiveCopyEqualsThePlainRule) {
    compareBlit(IMGFX_addBlit, [](std::uint32_t s, std::uint32_t d) { return plainAdd(s, d); });
}

TEST(Blit, IMGFX_averageDropsLowBits) {
    compareBlit(IMGFX_averageBlit, [](std::uint32_t s, std::uint32_t d) {
        return s == 0 ? d : perChannel(s, d, [](std::int32_t x, std::int32_t y) { return x / 2 + y / 2; });
    });
}

TEST(Blit, NoCornerOrSizeOverflows) {
    constexpr std::int32_t extremes[] = {std::numeric_limits<std::int32_t>::min(), -5, 3,
                                         std::numeric_limits<std::int32_t>::max()};
    Images images(1);
    IMG* src = images.image(9, 9);
    IMG* dst = images.image(9, 9);
    for (const std::int32_t s : extremes) {
        for (const std::int32_t d : extremes) {
            for (const std::int32_t size : extremes) {
                IMG_blit(src, dst, s, s, d, d, size, size);
                IMG_fillRect(dst, s, d, size, size, 1);
            }
        }
    }
    IMG_delete(&src);
    IMG_delete(&dst);
}

TEST(Fill, RectanglesAndLinesEqualThePlainRule) {
    for (std::uint32_t seed = 1; seed <= rounds; ++seed) {
        Images images(seed);
        IMG* actual = images.image();
        IMG* expected = IMG_clone(actual);
        const auto place = [&images] { return images.number(-20, 60); };
        const Rectangle r = {0, 0, place(), place(), images.number(-50, 50), images.number(-50, 50)};
        IMG_fillRect(actual, r.dx, r.dy, r.w, r.h, 0x123456);
        for (std::int32_t y = std::min(r.dy, r.dy + r.h); y < std::max(r.dy, r.dy + r.h); ++y) {
            for (std::int32_t x = std::min(r.dx, r.dx + r.w); x < std::max(r.dx, r.dx + r.w); ++x) {
                IMG_putPixel(expected, x, y, 0x123456);
            }
        }
        IMG_drawHLine(actual, 1, r.dy, r.dx, r.w);
        IMG_drawVLine(actual, 2, r.dx, r.dy, r.h);
        IMG_blendHLine(actual, 0xFF0000, r.w, r.dx, r.dy, 64);
        for (std::int32_t x = r.dx; x <= r.w; ++x) {
            IMG_putPixel(expected, x, r.dy, 1);
        }
        for (std::int32_t y = r.dy; y <= r.h; ++y) {
            IMG_putPixel(expected, r.dx, y, 2);
        }
        for (std::int32_t x = r.dx; x <= r.dy; ++x) {
            IMG_putPixel(
                expected, x, r.w,
                perChannel(0xFF0000, IMG_getPixel(expected, x, r.w),
                           [](std::int32_t c, std::int32_t old) { return (c * 64 + old * 192) >> 8; }));
        }
        EXPECT_EQ(difference(actual, expected), "") << "seed " << seed;
        IMG_delete(&actual);
        IMG_delete(&expected);
    }
}

TEST(Filters, EqualThePlainRule) {
    for (std::uint32_t seed = 1; seed <= rounds / 10; ++seed) {
        Images images(seed);
        IMG* src = images.image();
        IMG* blurred = images.image();
        IMG* glaring = IMG_clone(blurred);
        IMG* blurredPlainly = IMG_clone(blurred);
        IMG* glaringPlainly = IMG_clone(blurred);
        const std::int32_t shift = images.number(0, 9);
        IMGFX_blur(src, blurred);
        IMGFX_glare(src, glaring, shift);
        for (std::int32_t i = 0; i < src->width * src->height; ++i) {
            const std::int32_t x = i % src->width;
            const std::int32_t y = i / src->width;
            std::uint32_t blur = 0;
            std::uint32_t glare = 0;
            for (const int channel : {0, 8, 16}) {
                const auto at = [&](std::int32_t column) {
                    return (IMG_getPixel(src, column, y) >> channel) & 255;
                };
                blur |= ((at(x - 2) + at(x - 1) + at(x + 1) + at(x + 2) + 4 * at(x)) >> 3) << channel;
                glare |= std::min(255U, at(x) + (at(x - 1) >> shift) + (at(x + 1) >> shift)) << channel;
            }
            IMG_putPixel(blurredPlainly, x, y, blur);
            IMG_putPixel(glaringPlainly, x, y, glare);
        }
        EXPECT_EQ(difference(blurred, blurredPlainly), "") << "seed " << seed;
        EXPECT_EQ(difference(glaring, glaringPlainly), "") << "seed " << seed;
        for (IMG* img : {src, blurred, glaring, blurredPlainly, glaringPlainly}) {
            IMG_delete(&img);
        }
    }
}

TEST(Colours, WholeImagesEqualThePlainRule) {
    Images images(7);
    IMG* img = images.image(40, 40);
    IMG* sum = IMG_clone(img);
    IMG* rest = IMG_clone(img);
    IMG* inverse = IMG_clone(img);
    IMG_addColour(sum, 0x80F001);
    IMG_subColour(rest, 0x80F001);
    IMGFX_invert(inverse);
    for (std::int32_t i = 0; i < 1600; ++i) {
        EXPECT_EQ(sum->pixels[i], plainAdd(img->pixels[i], 0x80F001));
        EXPECT_EQ(rest->pixels[i], plainSub(img->pixels[i], 0x80F001));
        EXPECT_EQ(inverse->pixels[i], 0xFFFFFF - img->pixels[i]);
    }
    for (IMG* doomed : {img, sum, rest, inverse}) {
        IMG_delete(&doomed);
    }
}

TEST(Wrapped, RowsAndColumnsGoOnAtTheOtherEdge) {
    for (std::uint32_t seed = 1; seed <= rounds; ++seed) {
        Images images(seed);
        IMG* src = images.image();
        IMG* actual = images.image();
        IMG* expected = IMG_clone(actual);
        const std::int32_t offset = images.number(-100, 100);
        const auto wrapped = [](std::int32_t value, std::int32_t size) {
            return (value % size + size) % size;
        };
        const bool rows = images.number(0, 1) == 0;
        const std::int32_t line = images.number(0, (rows ? src->height : src->width) - 1);
        const std::int32_t onto = images.number(0, (rows ? actual->height : actual->width) - 1);
        const std::int32_t around = rows ? actual->width : actual->height;
        (rows ? IMG_copyRowWrapped : IMG_copyColumnWrapped)(src, actual, line, onto, offset);
        for (std::int32_t i = 0; i < std::min(around, rows ? src->width : src->height); ++i) {
            const std::uint32_t pixel = rows ? IMG_getPixel(src, i, line) : IMG_getPixel(src, line, i);
            const std::int32_t at = wrapped(offset + i, around);
            if (pixel != 0) {
                IMG_putPixel(expected, rows ? at : onto, rows ? onto : at, pixel);
            }
        }
        EXPECT_EQ(difference(actual, expected), "") << "seed " << seed;
        for (IMG* img : {src, actual, expected}) {
            IMG_delete(&img);
        }
    }
}

} // namespace
} // namespace velm::test

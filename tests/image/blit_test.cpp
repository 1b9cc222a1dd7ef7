// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Every loop that runs over whole rows against the plain rule, pixel by pixel, on random images and
// rectangles.
#include "foundation/wrap.h"
#include "image/channel_mean.h"
#include "image/imgfx.h"
#include "support/owned.h"

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

std::uint32_t plainMean(std::uint32_t a, std::uint32_t b) {
    return perChannel(a, b, [](std::int32_t x, std::int32_t y) { return (x + y) / 2; });
}

std::uint32_t copyVisible(std::uint32_t s, std::uint32_t d) {
    return s != 0 ? s : d;
}

struct Rectangle {
    std::int32_t sx, sy, dx, dy, w, h;
};

using Mix = std::uint32_t (*)(std::uint32_t, std::uint32_t);

/// The rule of every rectangle copy: a negative source corner moves the destination along, and what lies
/// outside either image is left out.
void plainBlit(const IMG* src, IMG* dst, Rectangle r, Mix mix) {
    paint(dst, [&](std::int64_t x, std::int64_t y, std::uint32_t old) {
        const std::int64_t across = x - r.dx;
        const std::int64_t down = y - r.dy;
        const bool inside = across >= 0 && across < r.w && down >= 0 && down < r.h &&
                            contains(*src, r.sx + across, r.sy + down);
        return inside ? mix(rowOf(*src, r.sy + down)[r.sx + across], old) : old;
    });
}

void plainFill(IMG* img, Rectangle r, std::uint32_t colour) {
    const auto inside = [](std::int64_t at, std::int64_t corner, std::int64_t size) {
        return at >= std::min(corner, corner + size) && at < std::max(corner, corner + size);
    };
    paint(img, [&](std::int64_t x, std::int64_t y, std::uint32_t old) {
        return inside(x, r.dx, r.w) && inside(y, r.dy, r.h) ? colour : old;
    });
}

using Blit = void (*)(const IMG*, IMG*, std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                      std::int32_t);

void compareBlit(Blit fast, Mix mix) {
    std::uint32_t changed = 0;
    for (std::uint32_t seed = 1; seed <= rounds; ++seed) {
        Images images(seed);
        const Picture src(images.image());
        const bool whole = seed % 4 == 1; // rows of one size follow each other in memory
        const Picture actual(whole ? images.image(src->width, src->height) : images.image());
        const Picture expected(IMG_clone(actual));
        const Picture before(IMG_clone(actual));
        const auto corner = [&images] { return images.number(-12, 25); };
        const std::int32_t width = images.number(-3, src->width + 20);
        Rectangle r = {corner(), corner(), corner(), corner(), width, images.number(-3, 60)};
        if (whole) {
            r.sx = r.dx = 0;
            r.w = src->width;
        }
        // An image copied onto itself, a little to the side, reads what it has just written.
        const bool self = seed % 4 == 0;
        if (self) {
            r.dx = r.sx + images.number(-2, 2);
            r.dy = r.sy + images.number(-1, 1);
        }
        fast(self ? actual : src, actual, r.sx, r.sy, r.dx, r.dy, r.w, r.h);
        plainBlit(self ? expected : src, expected, r, mix);
        EXPECT_EQ(difference(actual, expected), "") << "seed " << seed;
        changed += difference(actual, before).empty() ? 0 : 1;
    }
    EXPECT_GT(changed, rounds / 5) << "most rectangles missed: nothing was compared";
}

TEST(Blit, TransparentCopyEqualsThePlainRule) {
    compareBlit(IMG_blit, copyVisible);
}

TEST(Blit, AdditiveCopyEqualsThePlainRule) {
    compareBlit(IMGFX_addBlit, plainAdd);
}

TEST(Blit, OpaqueCopyEqualsThePlainRule) {
    compareBlit(IMGFX_opaqueBlit, [](std::uint32_t s, std::uint32_t) { return s; });
    const Picture large(Images(rounds).image(1031, 1033)); // goes past the caches
    const Picture blitted(IMG_newSized(large->width, large->height));
    IMGFX_opaqueBlit(large, blitted, 0, 0, 0, 0, large->width, large->height);
    EXPECT_EQ(difference(blitted, large), "");
    const Picture copied(IMG_clone(large));
    EXPECT_EQ(difference(copied, large), "");
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
    const Picture src(images.image(9, 9));
    const Picture dst(images.image(9, 9));
    const Picture expected(IMG_clone(dst));
    for (const std::int32_t s : extremes) {
        for (const std::int32_t d : extremes) {
            for (const std::int32_t size : extremes) {
                IMG_fillRect(dst, s, d, size, size, 1);
                plainFill(expected, {0, 0, s, d, size, size}, 1);
                EXPECT_EQ(difference(dst, expected), "") << s << " " << d << " " << size;
                IMG_blit(src, dst, s, s, d, d, size, size);
                plainBlit(src, expected, {s, s, d, d, size, size}, copyVisible);
                EXPECT_EQ(difference(dst, expected), "") << s << " " << d << " " << size;
            }
        }
    }
}

TEST(Fill, RectanglesAndLinesEqualThePlainRule) {
    std::uint32_t changed = 0;
    for (std::uint32_t seed = 1; seed <= rounds; ++seed) {
        Images images(seed);
        const Picture actual(images.image());
        const Picture expected(IMG_clone(actual));
        const auto place = [&images] { return images.number(-20, 60); };
        const Rectangle r = {0, 0, place(), place(), images.number(-50, 50), images.number(-50, 50)};
        IMG_fillRect(actual, r.dx, r.dy, r.w, r.h, 0x123456);
        changed += difference(actual, expected).empty() ? 0 : 1;
        plainFill(expected, r, 0x123456);
        IMG_drawHLine(actual, 1, r.dy, r.dx, r.w);
        IMG_drawVLine(actual, 2, r.dx, r.dy, r.h);
        IMG_blendHLine(actual, 0xFF0000, r.w, r.dx, r.dy, 64);
        plainFill(expected, {0, 0, r.dx, r.dy, std::max(0, r.w - r.dx + 1), 1}, 1);
        plainFill(expected, {0, 0, r.dx, r.dy, 1, std::max(0, r.h - r.dy + 1)}, 2);
        paint(expected, [&r](std::int32_t x, std::int32_t y, std::uint32_t old) {
            const auto blend = [](std::int32_t c, std::int32_t o) { return (c * 64 + o * 192) >> 8; };
            return y == r.w && x >= r.dx && x <= r.dy ? perChannel(0xFF0000, old, blend) : old;
        });
        EXPECT_EQ(difference(actual, expected), "") << "seed " << seed;
    }
    EXPECT_GT(changed, rounds / 5);
}

/// Compares a filter with a rule on random images. The rule makes one channel of a pixel from at(dx, dy), the
/// same channel of the pixels around it. Every other image is filtered with a strength of up to `strongest`.
template <typename Filter, typename Rule>
void compareFilter(Filter fast, Rule rule, std::int32_t strongest = 31) {
    for (std::uint32_t seed = 1; seed <= rounds / 10; ++seed) {
        Images images(seed);
        const Picture src(images.image());
        const Picture actual(images.image());
        const Picture expected(IMG_clone(actual));
        const std::int32_t strength = images.number(0, 1) * images.number(0, strongest);
        fast(src, actual, strength);
        paint(expected, [&](std::int32_t x, std::int32_t y, std::uint32_t old) {
            std::uint32_t pixel = 0;
            for (const int channel : {0, 8, 16}) {
                const auto at = [&](std::int32_t dx, std::int32_t dy) {
                    return (IMG_getPixel(src, x + dx, y + dy) >> channel) & 255;
                };
                pixel |= std::min(255U, rule(at, strength)) << channel;
            }
            return contains(*src, x, y) ? pixel : old;
        });
        EXPECT_EQ(difference(actual, expected), "") << "seed " << seed;
    }
}

/// The sum of a row's pixels, `reach` to either side.
std::uint32_t rowSum(const auto& at, std::int32_t reach) {
    std::uint32_t sum = 0;
    for (std::int32_t dx = -reach; dx <= reach; ++dx) {
        sum += at(dx, 0);
    }
    return sum;
}

TEST(Filters, IMGFX_blurDarkensEdgesAndAllEqualThePlainRule) {
    compareFilter([](const IMG* src, IMG* dst, std::int32_t) { IMGFX_blur(src, dst); },
                  [](const auto& at, std::int32_t) { return (rowSum(at, 2) + 3 * at(0, 0)) >> 3; });
    compareFilter([](const IMG* src, IMG* dst, std::int32_t) { IMGFX_blur7(src, dst); },
                  [](const auto& at, std::int32_t) { return (rowSum(at, 3) + at(0, 0)) >> 3; });
    compareFilter(
        IMGFX_blurRadius,
        [](const auto& at, std::int32_t radius) {
            return rowSum(at, radius) / static_cast<std::uint32_t>(2 * radius + 1);
        },
        140);
    compareFilter(IMGFX_glare, [](const auto& at, std::int32_t shift) {
        return at(0, 0) + (at(-1, 0) >> shift) + (at(1, 0) >> shift);
    });
    compareFilter(IMGFX_glare8, [](const auto& at, std::int32_t shift) {
        std::uint32_t sum = at(0, 0);
        for (const std::int32_t dy : {-1, 0, 1}) {
            for (const std::int32_t dx : {-1, 0, 1}) {
                sum += dx != 0 || dy != 0 ? at(dx, dy) >> shift : 0;
            }
        }
        return sum;
    });
}

TEST(Filters, MeansOfChannelsAreExact) {
    for (std::int32_t count = 1; count <= ChannelMean::mostChannels; ++count) {
        const ChannelMean mean(count);
        for (std::int32_t sum = 0; sum <= 255 * count; ++sum) {
            ASSERT_EQ(mean(static_cast<std::uint16_t>(sum)), sum / count) << sum << " / " << count;
        }
    }
}

TEST(Filters, TheWidestBlurIsExact) {
    const Picture white(IMG_newSized(5000, 1));
    const Picture blurred(IMG_clone(white));
    IMG_fill(white, 0xFFFFFE);
    for (const std::uint32_t seed : {0U, 8U}) {
        const Images kindOfProcessor(seed);
        for (const std::int32_t radius : {128, 129, IMGFX_largestRadius}) {
            IMGFX_blurRadius(white, blurred, radius);
            EXPECT_EQ(blurred->pixels[2500], 0xFFFFFEU) << "no sum overflows, no quotient is rounded up";
            const auto half = [radius](std::uint32_t channel) {
                return channel * static_cast<std::uint32_t>(radius + 1) /
                       static_cast<std::uint32_t>(2 * radius + 1);
            };
            EXPECT_EQ(blurred->pixels[0], half(0xFF) * 0x010100U + half(0xFE));
        }
    }
    IMG_fill(blurred, 7);
    for (const std::int32_t radius : {-1, IMGFX_largestRadius + 1}) {
        IMGFX_blurRadius(white, blurred, radius);
        EXPECT_EQ(blurred->pixels[9], 7U) << radius;
    }
}

TEST(Lines, CombineOnThePixelsOfThePlainLine) {
    const std::pair<decltype(&IMGFX_addLine), Mix> lines[] = {{IMGFX_addLine, plainAdd},
                                                              {IMGFX_averageLine, plainMean}};
    for (std::uint32_t seed = 1; seed <= 2 * rounds; ++seed) {
        Images images(seed);
        const auto& [draw, mix] = lines[seed > rounds ? 1 : 0];
        const Picture actual(images.image());
        const Picture expected(IMG_clone(actual));
        const Picture line(IMG_newSized(actual->width, actual->height));
        const auto end = [&images] { return images.number(-20, 60); };
        const std::int32_t ends[] = {end(), end(), end(), end()};
        const std::uint32_t colour = images.pixel();
        IMG_drawLine(line, ends[0], ends[1], ends[2], ends[3], 1);
        paint(expected, [&, rule = mix](std::int32_t x, std::int32_t y, std::uint32_t old) {
            return IMG_getPixel(line, x, y) != 0 ? rule(old, colour) : old;
        });
        draw(actual, ends[0], ends[1], ends[2], ends[3], colour);
        EXPECT_EQ(difference(actual, expected), "") << "seed " << seed;
    }
}

TEST(Colours, WholeImagesEqualThePlainRule) {
    for (std::uint32_t seed = 1; seed <= rounds / 10; ++seed) {
        Images images(seed);
        const std::uint32_t colour = images.pixel();
        const Picture img(images.image());
        const Picture sum(IMG_clone(img));
        const Picture rest(IMG_clone(img));
        const Picture inverse(IMG_clone(img));
        const Picture mask(images.image());
        const Picture masked(IMG_clone(img));
        IMG_addColour(sum, colour);
        IMG_subColour(rest, colour);
        IMGFX_invert(inverse);
        IMG_andMask(mask, masked);
        for (std::int32_t i = 0; i < img->width * img->height; ++i) {
            const std::uint32_t pixel = img->pixels[i];
            ASSERT_EQ(sum->pixels[i], plainAdd(pixel, colour)) << "seed " << seed << " pixel " << i;
            ASSERT_EQ(rest->pixels[i], plainSub(pixel, colour)) << "seed " << seed << " pixel " << i;
            ASSERT_EQ(inverse->pixels[i], ~pixel & 0xFFFFFF) << "seed " << seed << " pixel " << i;
            const bool isMasked = i < mask->width * mask->height;
            ASSERT_EQ(masked->pixels[i], isMasked ? pixel & mask->pixels[i] : pixel) << "seed " << seed;
        }
    }
}

TEST(Wrapped, RowsAndColumnsGoOnAtTheOtherEdge) {
    std::uint32_t changed = 0;
    for (std::uint32_t seed = 1; seed <= rounds; ++seed) {
        Images images(seed);
        const Picture src(images.image());
        const Picture actual(images.image());
        const Picture expected(IMG_clone(actual));
        const std::int32_t offset = images.number(-100, 100);
        const bool rows = images.number(0, 1) == 0;
        const auto within = [&images](std::int32_t size) { return images.number(0, std::max(size, 1) - 1); };
        const std::int32_t line = within(rows ? src->height : src->width);
        const std::int32_t onto = within(rows ? actual->height : actual->width);
        const std::int32_t around = rows ? actual->width : actual->height;
        (rows ? IMG_copyRowWrapped : IMG_copyColumnWrapped)(src, actual, line, onto, offset);
        changed += difference(actual, expected).empty() ? 0 : 1;
        for (std::int32_t i = 0; i < std::min(around, rows ? src->width : src->height); ++i) {
            const std::uint32_t pixel = rows ? IMG_getPixel(src, i, line) : IMG_getPixel(src, line, i);
            const std::int32_t at = positiveModulo(offset + i, around);
            if (pixel != 0) {
                IMG_putPixel(expected, rows ? at : onto, rows ? onto : at, pixel);
            }
        }
        EXPECT_EQ(difference(actual, expected), "") << "seed " << seed;
    }
    EXPECT_GT(changed, rounds / 2);
}

} // namespace
} // namespace velm::test

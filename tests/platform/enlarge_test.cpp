// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Where the picture stands on a screen, and how it is enlarged.
#include "platform/enlarge.h"
#include "support/owned.h"

namespace velm {
namespace {

TEST(Layout, ThePictureIsAsLargeAsWholePixelsAllowAndCentred) {
    EXPECT_EQ(layoutFor(256, 256, 256, 256), (Layout{1, 0, 0}));
    EXPECT_EQ(layoutFor(256, 256, 1920, 1080), (Layout{4, 448, 28}));
    EXPECT_EQ(layoutFor(256, 256, 1025, 2000), (Layout{4, 0, 488}));
    EXPECT_EQ(layoutFor(256, 256, 1023, 2000), (Layout{3, 127, 616}));
    EXPECT_EQ(layoutFor(256, 256, 200, 101), (Layout{1, -28, -78})) << "never smaller than it is";
    EXPECT_EQ(scaleForScreen(256, 256, 1920, 1080), 3);
    EXPECT_EQ(scaleForScreen(256, 256, 3840, 2160), 7);
    EXPECT_EQ(scaleForScreen(256, 256, 320, 200), 1);
}

TEST(Layout, APlaceInTheWindowIsOneInThePictureAlsoOutside) {
    const Layout layout{3, 10, 20};
    const std::int32_t places[][4] = {{10, 20, 0, 0},  {12, 22, 0, 0},  {13, 23, 1, 1},
                                      {9, 19, -1, -1}, {7, 17, -1, -1}, {6, 787, -2, 255}};
    for (const auto& [windowX, windowY, x, y] : places) {
        std::int32_t seenX = windowX;
        std::int32_t seenY = windowY;
        layout.toPicture(seenX, seenY);
        EXPECT_EQ(seenX, x) << windowX;
        EXPECT_EQ(seenY, y) << windowY;
    }
}

TEST(Enlarge, EveryPixelBecomesASquareInTheScreensLayoutAndNothingElseChanges) {
    test::Images random(4030);
    const Owned<IMG_delete> frame(random.image(9, 8));
    const PixelLayout layouts[] = {{1, 0xE0, 0x1C, 0x03},
                                   {2, 0xF800, 0x07E0, 0x001F},
                                   {3, 0x0000FF, 0x00FF00, 0xFF0000},
                                   {4, 0xFF0000, 0x00FF00, 0x0000FF},
                                   {4, 0x3FF00000, 0x000FFC00, 0x000003FF}};
    constexpr char untouched = -1;
    for (const PixelLayout& pixels : layouts) {
        for (std::int32_t scale = 1; scale <= 5; ++scale) {
            // In its own size it is cut off on all sides, else there is a margin.
            const Layout layout = scale == 1 ? Layout{1, -1, -2} : Layout{scale, 2, 1};
            Raster raster{nullptr, scale == 1 ? 7 : 9 * scale + 3, scale == 1 ? 5 : 8 * scale + 2, 0, pixels};
            raster.pitch = raster.width * pixels.bytes + 5;
            std::vector<char> bytes(static_cast<std::size_t>(raster.pitch * raster.height), untouched);
            raster.first = bytes.data();
            const Part place = enlarge(*frame, layout, raster);
            EXPECT_EQ(place.x, scale == 1 ? 0 : 2);
            EXPECT_EQ(place.height, scale == 1 ? 5 : 8 * scale);
            for (std::int32_t y = 0; y < raster.height; ++y) {
                for (std::int32_t x = 0; x < raster.width; ++x) {
                    std::int32_t pictureX = x;
                    std::int32_t pictureY = y;
                    layout.toPicture(pictureX, pictureY);
                    const bool isInside =
                        std::clamp(pictureX, 0, 8) == pictureX && std::clamp(pictureY, 0, 7) == pictureY;
                    const std::uint32_t expected =
                        isInside ? pixels.of(IMG_getPixel(frame, pictureX, pictureY)) : ~0U;
                    ASSERT_EQ(std::memcmp(raster.first + y * raster.pitch + x * pixels.bytes, &expected,
                                          static_cast<std::size_t>(pixels.bytes)),
                              0)
                        << pixels.bytes << " bytes, " << scale << " times, at " << x << ", " << y;
                }
                ASSERT_EQ(raster.first[(y + 1) * raster.pitch - 1], untouched);
            }
        }
    }
    EXPECT_EQ(layouts[1].of(0xFF8040), 0xFC08U) << "fewer bits drop the low ones";
    EXPECT_EQ(layouts[4].of(0xFF8001), 0x3FF80804U) << "more bits repeat the high ones";
}

TEST(Enlarge, OnlyWhatChangedIsDrawn) {
    test::Images random(4031);
    constexpr std::int32_t columns = 40;
    constexpr std::int32_t rows = 8;
    const Owned<IMG_delete> before(random.image(columns, rows));
    const Owned<IMG_delete> after(IMG_clone(before));
    after->pixels[columns * 2 + 1] = 0x102030;
    after->pixels[columns * 2 + 5] = 0x102030;
    after->pixels[columns * 7 + 38] = 0x405060;
    const Layout layouts[] = {{1, -1, -2}, {3, 2, 1}};
    for (const Layout& layout : layouts) {
        constexpr std::int32_t width = 123;
        constexpr std::int32_t height = 26;
        constexpr std::uint32_t untouched = 0x777777;
        std::vector<std::uint32_t> pixels(width * height, untouched);
        const Raster raster{reinterpret_cast<char*>(pixels.data()), width, height, width * 4,
                            PixelLayout(4, 0xFF0000, 0x00FF00, 0x0000FF)};
        enlarge(*before, layout, raster);
        std::vector<std::uint32_t> whole = pixels;
        enlarge(*after, layout,
                {reinterpret_cast<char*>(whole.data()), width, height, width * 4, raster.pixels});
        std::vector<std::uint32_t> former(before->pixels, before->pixels + columns * rows);
        enlarge(*after, layout, raster, former);
        EXPECT_EQ(pixels, whole) << layout.scale;
        EXPECT_TRUE(std::equal(former.begin() + columns, former.end(), after->pixels + columns))
            << layout.scale;
        former.assign(before->pixels, before->pixels + columns * rows);
        std::fill(pixels.begin(), pixels.end(), untouched);
        enlarge(*after, layout, raster, former);
        const auto drawn = static_cast<std::int32_t>(pixels.size()) -
                           static_cast<std::int32_t>(std::count(pixels.begin(), pixels.end(), untouched));
        EXPECT_EQ(drawn, layout.scale == 1 ? 16 + 7 : (16 + 8) * 3 * 3) << "two blocks, the last cut off";
    }
}

} // namespace
} // namespace velm

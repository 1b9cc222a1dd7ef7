// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The effects that write with line fonts. Their glyphs are single pixels here, and the palette tells which
// character of the text a pixel belongs to.
#include "audio/sample.h"
#include "effects/line_font.h"
#include "effects/lscrlxyz.h"
#include "effects/lscroll.h"
#include "effects/wordzoom.h"

namespace velm::test {
namespace {

constexpr std::int32_t one = 1 << 16;

struct Numbers {
    Numbers() {
        for (std::int32_t i = 0; i < 64; ++i) {
            SAMPLE_append(sample, i + 1);
        }
    }
    Owned<SAMPLE_delete> sample{SAMPLE_new()};
};

/// Gives an effect the glyphs of one pixel, and a colour for each character.
template <typename Effect>
void makePlain(Effect* effect, const PixelPen& pen, const Numbers& numbers) {
    effect->glyphs = pen->glyphs;
    effect->palette = numbers.sample;
    effect->hue = effect->middle = 0;
    effect->hueStep = 1;
}

TEST(Lscroll, WrapsBothWays) {
    const PixelPen pen(64, 9);
    const Numbers numbers;
    const Owned<LSCROLL_delete> scroll(LSCROLL_new());
    makePlain<LSCROLL>(scroll, pen, numbers);
    scroll->cell = 2;
    scroll->hueSpeed = 0;
    scroll->liftHeight = scroll->swingAngle = scroll->fade = 0;
    LSCROLL_setLine(scroll, 10, 4, 50, 4);
    LSCROLL_setText(scroll, "ABCDEFG");
    std::int64_t moved = 0;
    for (const std::int32_t speed : {0, one, one, 11 * one, -13 * one, -one, 9999 * one, -32000 * one, 1}) {
        scroll->speed = speed;
        LSCROLL_advance(scroll);
        moved += speed;
        IMG_fill(pen.target, 0);
        LSCROLL_draw(scroll, pen.target);
        std::uint32_t expected[64] = {};
        for (std::int64_t k = -40000; k < 40000; ++k) {
            const std::int64_t along = k * 2 * one + one - moved;
            if (along >= 0 && along < 40 * one) {
                expected[10 + ((along + one / 2) >> 16)] = static_cast<std::uint32_t>((k % 7 + 7) % 7) + 1;
            }
        }
        ASSERT_TRUE(std::equal(expected, expected + 64, rowOf(*pen.target, 4))) << "moved by " << moved;
    }
}

TEST(Lscroll, LeadsAroundARing) {
    const Owned<LSCROLL_delete> scroll(LSCROLL_new());
    LSCROLL_setCurve(scroll, {100, 60, 50, 50, 1, 1, 0});
    EXPECT_NEAR(scroll->length, 314, 1);
    for (std::int32_t i = 0; i < scroll->length; ++i) {
        const LSCROLL_STATION& station = scroll->stations[i];
        const LSCROLL_STATION& next = scroll->stations[(i + 1) % scroll->length];
        ASSERT_NEAR(std::hypot(station.x / 65536.0 - 100, station.y / 65536.0 - 60), 50, 0.2);
        ASSERT_NEAR(std::hypot(next.x - station.x, next.y - station.y), one, one / 2) << "at " << i;
        ASSERT_NEAR(station.angle, i * 1024.0 / scroll->length, 4);
    }
    LSCROLL_setText(scroll, "0123456789");
    LSCROLL_fit(scroll);
    EXPECT_NEAR(scroll->scale * 160.0, scroll->length * 65536.0, 160);
    expectReports(LSCROLL_verbose, 4, "LSCROLL error", [&] {
        expectFailure(1, [&] { return LSCROLL_setLine(scroll, 0, 0, 9, 9), nullptr; });
        LSCROLL_setLine(scroll, 5, 5, 5, 5), LSCROLL_setLine(scroll, 0, 0, 8193, 0);
        LSCROLL_setCurve(scroll, {0, 0, 5000, 5, 1, 1, 0});
    });
    EXPECT_NEAR(scroll->length, 314, 1) << "the path stays";
}

TEST(LineTexts, KeepGlyphsFromTheEndsOfTheirRangeOutOfSight) {
    constexpr std::int32_t most = 0x7FFFFFFF;
    const PixelPen pen(64, 64);
    auto* const glyph = static_cast<OBJ2D*>(LIST_get(pen->glyphs, 'A'));
    const auto* const stroke = static_cast<SEG2D*>(LIST_get(glyph->segments, 0));
    const Owned<LSCROLL_delete> scroll(LSCROLL_new());
    const Owned<WORDZOOM_delete> zoom(WORDZOOM_new());
    scroll->glyphs = zoom->glyphs = pen->glyphs;
    LSCROLL_setText(scroll, "A"), WORDZOOM_setText(zoom, "A");
    WORDZOOM_advance(zoom);
    for (const auto& [x, y] : {std::pair{most, -most}, {-most, most}, {-most - 1, -most - 1}}) {
        *stroke->a = *stroke->b = {x, y, 1};
        for (const std::int32_t end : {most, -most - 1}) {
            scroll->middle = zoom->middle = end;
            for (const std::int32_t scale : {one * 9, most}) {
                scroll->scale = scale;
                zoom->flights[0].scale = std::min(scale, one * 9);
                LSCROLL_draw(scroll, pen.target), WORDZOOM_draw(zoom, pen.target);
            }
        }
    }
    EXPECT_EQ(lit(pen.target), 0);
}

TEST(Lscrlxyz, ShowsTheFarSideDimAndFromBehind) {
    const PixelPen pen(200, 200);
    const Numbers numbers;
    const Owned<LSCRLXYZ_delete> scroll(LSCRLXYZ_new());
    makePlain<LSCRLXYZ>(scroll, pen, numbers);
    SAMPLE_set(numbers.sample, 0, 0xFFFFFF);
    scroll->angle = {0, 0, 0};
    scroll->x = scroll->y = 100;
    scroll->radius = 64;
    scroll->distance = 128;
    scroll->dimmest = 64;
    LSCRLXYZ_setText(scroll, "A????");
    LSCRLXYZ_fit(scroll);
    EXPECT_EQ(LSCRLXYZ_length(scroll), 402);
    scroll->text.index = 3; // the only letter is the third of five: in the middle, before the viewer
    LSCRLXYZ_draw(scroll, pen.target);
    EXPECT_EQ(IMG_getPixel(pen.target, 100, 100), 0xFFFFFFU);
    IMG_fill(pen.target, 0);
    scroll->angle.y = 512;
    LSCRLXYZ_draw(scroll, pen.target);
    EXPECT_NEAR(IMG_getPixel(pen.target, 100, 100) & 255, 0xFF * 64 / 256, 3);
    // What comes too near is left out, wherever the viewer stands.
    IMG_fill(pen.target, 0);
    scroll->angle.y = 0;
    scroll->distance = 64 + 20;
    LSCRLXYZ_draw(scroll, pen.target);
    EXPECT_EQ(difference(pen.target, Picture(IMG_newSized(200, 200))), "");
}

struct Wordzoom : testing::Test {
    Wordzoom() { zoom->glyphs = pen->glyphs; }

    /// Brings one word to full size, without a drift.
    void write(const char* word) const {
        WORDZOOM_setText(zoom, word);
        WORDZOOM_advance(zoom);
        zoom->flights[0].scale = one;
        zoom->flights[0].driftX = zoom->flights[0].driftY = 0;
    }

    PixelPen pen{64, 64};
    Owned<WORDZOOM_delete> zoom{WORDZOOM_new()};
};

TEST_F(Wordzoom, SendsWordByWordAndEnds) {
    zoom->loop = 0;
    zoom->interval = 3;
    WORDZOOM_setText(zoom, " ONE\n\nTHREE  A ");
    std::string order;
    for (std::int32_t frame = 0; frame < 500; ++frame) {
        WORDZOOM_advance(zoom);
        WORDZOOM_draw(zoom, pen.target);
        for (const WORDZOOM_FLIGHT& flight : zoom->flights) {
            if (flight.word != nullptr && flight.scale == one / 12) {
                order += std::string(flight.word, static_cast<std::size_t>(flight.length)) + ",";
            }
        }
    }
    EXPECT_EQ(order, "ONE,THREE,A,");
    zoom->loop = 1;
    zoom->interval = 0;
    zoom->growth = 0; // words that hardly move fill every place, and no more
    for (const char* text : {"X Y", "", " \n "}) {
        WORDZOOM_setText(zoom, text);
        for (std::int32_t i = 0; i < 20; ++i) {
            WORDZOOM_advance(zoom);
        }
        for (const WORDZOOM_FLIGHT& flight : zoom->flights) {
            EXPECT_EQ(flight.word != nullptr, text[0] == 'X');
        }
    }
}

TEST_F(Wordzoom, DragsEightCopiesAtMost) {
    zoom->x = zoom->y = 32;
    zoom->cell = 60;
    zoom->middle = 0;
    write("AB");
    const auto litBy = [&](std::int32_t echoes) {
        zoom->echoes = echoes;
        IMG_fill(pen.target, 0);
        WORDZOOM_draw(zoom, pen.target);
        return lit(pen.target);
    };
    EXPECT_EQ(litBy(-5), 2);
    EXPECT_EQ(litBy(7), 16);
    EXPECT_EQ(litBy(8), 18);
    EXPECT_EQ(litBy(40), 18) << "more would come out on the other side";
}

TEST_F(Wordzoom, WritesUprightAtFullSize) {
    zoom->cell = 2;
    zoom->middle = 1;
    zoom->x = 4, zoom->y = 2;
    zoom->echoes = 0;
    write("ABC");
    WORDZOOM_draw(zoom, pen.target);
    for (std::int32_t x = 0; x < 9; ++x) {
        EXPECT_EQ(IMG_getPixel(pen.target, x, 1) != 0, x == 1 || x == 3 || x == 5) << x;
    }
}

} // namespace
} // namespace velm::test

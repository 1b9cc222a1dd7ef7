// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/line_font.h"
#include "effects/logofly.h"
#include "foundation/chance.h"
#include "foundation/sine.h"

namespace velm::test {
namespace {

/// A logo on row 30 of a pen's target.
struct Logofly : testing::Test {
    Logofly() {
        logo->pen = pen;
        logo->target = pen.target;
        logo->y = 30;
    }

    /// How high above the base line a column shows a letter; -1 when it shows none.
    [[nodiscard]] std::int32_t heightAt(std::int32_t x) const {
        std::int32_t height = 30;
        while (height >= 0 && IMG_getPixel(pen.target, x, 30 - height) == 0) {
            --height;
        }
        return height;
    }

    PixelPen pen{64, 40};
    Owned<LOGOFLY_delete> logo{LOGOFLY_new()};
};

TEST_F(Logofly, LOGOFLY_bytesAreSigned) {
    pen->angle = 99;
    pen->scale->x = 7;
    logo->x = 4;
    logo->phase = 300;
    logo->letterStep = 120;
    logo->amplitude = 25;
    logo->text = "A?Z\xC1"; // those without a glyph take their part of the wave all the same
    LOGOFLY_draw(logo);
    EXPECT_EQ(heightAt(4), (SINE_entry(300) * 25) >> 15);
    EXPECT_EQ(heightAt(5), (SINE_entry(540 & 511) * 25) >> 15);
    EXPECT_EQ(heightAt(6), -1);
    EXPECT_EQ(pen.font['B']->colour, 0xFFFFFFU);
    EXPECT_EQ(pen->character, 0xC1 - 256);
}

TEST_F(Logofly, AdvancesWithinHalfOrAllOfTheWave) {
    logo->speed = 12;
    logo->phase = 510, LOGOFLY_advance(logo);
    EXPECT_EQ(logo->phase, 10);
    logo->phase = 510, LOGOFLY_advanceFull(logo);
    EXPECT_EQ(logo->phase, 522);
    logo->phase = 1020, LOGOFLY_advanceFull(logo);
    EXPECT_EQ(logo->phase, 8);
}

TEST_F(Logofly, LOGOFLY_targetIsOnlyTested) {
    const Picture elsewhere(IMG_newSized(64, 40));
    const std::string text(50, 'X');
    logo->target = elsewhere;
    logo->text = text.c_str();
    logo->amplitude = 0;
    LOGOFLY_draw(logo);
    EXPECT_EQ(difference(elsewhere, Picture(IMG_newSized(64, 40))), "");
    EXPECT_EQ(heightAt(39), 0);
    EXPECT_EQ(heightAt(40), -1); // 40 letters at most
}

TEST_F(Logofly, LOGOFLY_cloneLeavesPlace) {
    logo->x = 96;
    logo->colour = 0x00FF00;
    logo->text = "OTHER";
    chanceSeed(4);
    const Owned<LOGOFLY_delete> clone(LOGOFLY_clone(logo));
    const long after = chance();
    EXPECT_EQ(LOGOFLY_equals(logo, clone), 1);
    EXPECT_EQ(clone->x, 0);
    EXPECT_EQ(clone->colour, 0x00FF00U);
    LOGOFLY_copy(logo, clone);
    EXPECT_EQ(clone->x, 96);
    EXPECT_STREQ(clone->text, "VELM");
    chanceSeed(4);
    LOGOFLY_randomize(clone);
    EXPECT_EQ(LOGOFLY_equals(logo, clone), 0);
    chanceSeed(4);
    EXPECT_EQ(clone->speed, chance() % 24 + 8);
    EXPECT_EQ(clone->letterStep, chance() % 8 + 1);
    EXPECT_EQ(clone->amplitude, chance() % 100 + 16);
    EXPECT_EQ(chance(), after);
}

} // namespace
} // namespace velm::test

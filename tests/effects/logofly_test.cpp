// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/line_font.h"
#include "effects/logofly.h"
#include "foundation/sine.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace velm::test {

namespace {

using Logo = Owned<LOGOFLY, LOGOFLY_delete>;

/// A logo on row 30 of a pen's target.
struct Stage {
    Stage() {
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
    Logo logo{LOGOFLY_new()};
};

} // namespace

TEST(Logofly, LettersBounceOnTheirOwnPhases) {
    const Stage stage;
    stage.pen->angle = 99;
    stage.pen->scale->x = 7;
    stage.logo->x = 4;
    stage.logo->phase = 300;
    stage.logo->letterStep = 120;
    stage.logo->amplitude = 25;
    stage.logo->text = "A?Z\xC1"; // those without a glyph take their part of the wave all the same
    LOGOFLY_draw(stage.logo);
    EXPECT_EQ(stage.heightAt(4), (SINE_entry(300) * 25) >> 15);
    EXPECT_EQ(stage.heightAt(5), (SINE_entry(540 & 511) * 25) >> 15);
    EXPECT_EQ(stage.heightAt(6), -1);
    EXPECT_EQ(stage.pen.font['B']->colour, 0xFFFFFFU);
}

TEST(Logofly, LOGOFLY_bytesAreSigned) {
    const Stage stage;
    stage.logo->text = "\xC1";
    LOGOFLY_draw(stage.logo);
    EXPECT_EQ(stage.pen->character, 0xC1 - 256);
}

TEST(Logofly, AdvancesWithinHalfOrAllOfTheWave) {
    const Logo logo(LOGOFLY_new());
    logo->speed = 12;
    logo->phase = 510, LOGOFLY_advance(logo);
    EXPECT_EQ(logo->phase, 10);
    logo->phase = 510, LOGOFLY_advanceFull(logo);
    EXPECT_EQ(logo->phase, 522);
    logo->phase = 1020, LOGOFLY_advanceFull(logo);
    EXPECT_EQ(logo->phase, 8);
}

TEST(Logofly, LOGOFLY_targetIsOnlyTested) {
    const Stage stage;
    const Picture elsewhere(IMG_newSized(64, 40));
    const std::string text(50, 'X');
    stage.logo->target = elsewhere;
    stage.logo->text = text.c_str();
    stage.logo->amplitude = 0;
    LOGOFLY_draw(stage.logo);
    EXPECT_EQ(firstDifference(elsewhere, Picture(IMG_newSized(64, 40))), "");
    EXPECT_EQ(stage.heightAt(39), 0);
    EXPECT_EQ(stage.heightAt(40), -1); // 40 letters at most
}

TEST(Logofly, LOGOFLY_cloneLeavesPlace) {
    const Stage stage;
    stage.logo->x = 96;
    stage.logo->colour = 0x00FF00;
    stage.logo->text = "OTHER";
    srandom(4);
    const Logo clone(LOGOFLY_clone(stage.logo));
    const long after = random();
    EXPECT_EQ(LOGOFLY_equals(stage.logo, clone), 1);
    EXPECT_EQ(clone->x, 0);
    EXPECT_EQ(clone->colour, 0x00FF00U);
    srandom(4);
    LOGOFLY_randomize(clone);
    EXPECT_EQ(random(), after);
    EXPECT_EQ(LOGOFLY_equals(stage.logo, clone), 0);
    srandom(4);
    EXPECT_EQ(clone->speed, random() % 24 + 8);
    EXPECT_EQ(clone->letterStep, random() % 8 + 1);
    EXPECT_EQ(clone->amplitude, random() % 100 + 16);
    LOGOFLY_copy(stage.logo, clone);
    EXPECT_EQ(clone->x, 96);
    EXPECT_STREQ(clone->text, "VELM");
}

} // namespace velm::test

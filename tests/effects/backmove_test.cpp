// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/backmove.h"
#include "foundation/chance.h"
#include "foundation/wrap.h"
#include "image/rgb888.h"
#include "support/owned.h"

namespace velm::test {
namespace {

/// Every pixel by itself, from the frames that have passed since the place (0, 0).
std::uint32_t plain(const BACKMOVE& back, std::int32_t frames, std::int32_t x, std::int32_t y) {
    const std::int32_t across = SINE_scaled(back.reachX, back.pathX.phase) +
                                SINE_scaled(back.rippleReach, back.ripple.phase + back.ripple.offsetStep * y);
    const std::int32_t row =
        positiveModulo(((frames * back.speedY) >> 16) + SINE_scaled(back.reachY, back.pathY.phase) + y,
                       back.picture->height);
    const std::int32_t band = row * back.depths / back.picture->height;
    // Far enough to the right that cutting the quotient off rounds down.
    const std::int64_t whole = std::int64_t{back.depths} * back.picture->width << 24;
    const std::int64_t shift = ((whole + frames * back.speedX) * (band + 1) / back.depths) >> 16;
    return IMG_getPixel(
        back.picture,
        static_cast<std::int32_t>((shift + across + 40960 * back.picture->width + x) % back.picture->width),
        row);
}

TEST(Backmove, WrapsInBothDirectionsAsThePlainRule) {
    chanceSeed(3);
    for (const auto& [width, height] : {std::pair{64, 32}, {30, 90}, {7, 5}, {1, 1}}) {
        const Picture picture(noise(width, height, 4));
        for (const std::int32_t depths : {1, 3}) {
            const Owned<BACKMOVE_delete> back(BACKMOVE_new());
            BACKMOVE_setPicture(back, picture);
            BACKMOVE_setDepths(back, depths);
            back->rippleReach = depths == 1 ? 0 : 20;
            for (std::int32_t frame = 0; frame < 600; ++frame, BACKMOVE_advance(back)) {
                if (frame % 97 != 0) {
                    continue;
                }
                const Picture actual(noise(50, 40, 5));
                const Picture expected(noise(50, 40, 6));
                BACKMOVE_draw(back, actual);
                paint(expected, [&](std::int32_t x, std::int32_t y, std::uint32_t) {
                    return plain(*back, frame, x, y) & 0xFFFFFF;
                });
                ASSERT_EQ(difference(actual, expected), "")
                    << width << "x" << height << ", depths " << depths << ", frame " << frame;
            }
        }
    }
}

TEST(Backmove, MixesWithWhatStandsThere) {
    const Picture picture(IMG_newSized(2, 1));
    picture->pixels[0] = 0x804020;
    const Owned<BACKMOVE_delete> back(BACKMOVE_new());
    BACKMOVE_setPicture(back, picture);
    back->reachX = back->reachY = 0;
    back->brightness = 128;
    const auto drawn = [&](void (*draw)(const BACKMOVE*, IMG*)) {
        const Picture target(IMG_newSized(2, 1));
        IMG_fill(target, 0xF00010);
        draw(back, target);
        return std::pair{target->pixels[0], target->pixels[1]};
    };
    EXPECT_EQ(drawn(BACKMOVE_draw), std::pair(0x402010U, 0U));
    EXPECT_EQ(drawn(BACKMOVE_drawOver), std::pair(0x402010U, 0xF00010U));
    EXPECT_EQ(drawn(BACKMOVE_drawAdd), std::pair(0xFF2020U, 0xF00010U));
}

TEST(Backmove, RefusesWhatItCannotShow) {
    const Owned<BACKMOVE_delete> back(BACKMOVE_new());
    const Picture picture(noise(8, 8, 1));
    const Picture empty(IMG_newSized(0, 4));
    expectReports(BACKMOVE_verbose, 7, "BACKMOVE error", [&] {
        BACKMOVE_advance(back), BACKMOVE_draw(back, picture), BACKMOVE_setPicture(back, empty);
        BACKMOVE_setPicture(back, picture), BACKMOVE_drawOver(back, picture), BACKMOVE_drawAdd(back, nullptr);
        BACKMOVE_setDepths(back, 0), BACKMOVE_setDepths(back, BACKMOVE_mostDepths + 1);
    });
    EXPECT_TRUE(back->depths == 1 && back->picture == picture);
}

} // namespace
} // namespace velm::test

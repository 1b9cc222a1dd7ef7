// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What leaping figures, breathing lines, rays and stars keep to at the ends of their ranges.
#include "audio/sample.h"
#include "effects/archpath.h"
#include "effects/lradial.h"
#include "effects/lstar.h"
#include "effects/sineline.h"
#include "foundation/chance.h"
#include "support/owned.h"

namespace velm::test {
namespace {

TEST(Archpath, LeapsWhereCoordinatesEnd) {
    const Owned<ARCHPATH_delete> path(ARCHPATH_new());
    constexpr std::int32_t most = 0x7FFFFFFF;
    path->left = most - 1, path->right = -most, path->ground = -most; // four columns about the end
    path->frames = 1;
    const std::int32_t columns[] = {most - 1, most, -most - 1, -most};
    std::int32_t met[4] = {};
    ARCHPATH_randomize(path);
    for (std::int32_t leap = 0; leap < 100; ++leap) {
        const auto* const column = std::find(std::begin(columns), std::end(columns), path->to);
        ASSERT_NE(column, std::end(columns)) << path->to;
        ++met[column - std::begin(columns)];
        ARCHPATH_advance(path);
    }
    EXPECT_EQ(std::count(std::begin(met), std::end(met), 0), 0);
}

TEST(Sineline, ClosesWithMoreCornersThanFitIntoANumberOfAngles) {
    const Owned<SINELINE_delete> line(SINELINE_new());
    line->echoes = 1;
    const auto drawn = [&line](std::int32_t corners) {
        auto screen = std::make_unique<Picture>(IMG_newSized(256, 256));
        line->corners = corners;
        SINELINE_draw(line, *screen);
        return screen;
    };
    // So many corners at each angle that light saturates.
    EXPECT_EQ(difference(*drawn(3000000), *drawn(300000)), "");
}

TEST(Lradial, DrawsTheLengthsItIsGiven) {
    const Owned<LRADIAL_delete> rays(LRADIAL_new());
    const Owned<SAMPLE_delete> sound(SAMPLE_new());
    SAMPLE_append(sound, -800), SAMPLE_append(sound, 0x7FFFFFFF);
    LRADIAL_setCount(rays, 4);
    rays->turn = 0, rays->inner = 10, rays->reach = 60;
    LRADIAL_setSoundLengths(rays, sound, -1, 1, 4);
    EXPECT_EQ(std::vector<std::int32_t>(rays->lengths, rays->lengths + 4), (std::vector{0, 50, 60, 0}));
    rays->lengths[0] = 40;
    const Picture screen(IMG_newSized(256, 256));
    LRADIAL_draw(rays, screen);
    for (std::int32_t x = 140; x < 190; ++x) { // the cosine falls short of a pixel by less than one
        const std::uint32_t expected = x < 157 ? 0xFEFEFE : x > 159 && x < 177 ? 0x7F7F7F : 0;
        if (expected != 0 || x > 179) {
            ASSERT_EQ(IMG_getPixel(screen, x, 128), expected) << x;
        }
    }
}

TEST(Lstar, ClipsAndStaysInItsWorld) {
    chanceSeed(5);
    const Owned<LSTAR_delete> sky(LSTAR_new());
    const Picture screen(IMG_newSized(64, 48));
    std::int32_t most = 0;
    for (const std::int32_t speed : {700, -5000, 0x7FFFFFFF}) {
        sky->speed = speed, sky->x = speed == 700 ? 32 : -40;
        for (std::int32_t frame = 0; frame < 200; ++frame, LSTAR_advance(sky)) {
            IMG_fill(screen, 0);
            LSTAR_draw(sky, screen), LSTAR_drawPolygons(sky, screen);
            most = std::max(most, lit(screen));
            for (std::int32_t i = 0; i < sky->count; ++i) {
                ASSERT_TRUE(sky->stars[i].z >= LSTAR_near && sky->stars[i].z < LSTAR_far);
            }
        }
    }
    EXPECT_GT(most, 100);
}

} // namespace
} // namespace velm::test

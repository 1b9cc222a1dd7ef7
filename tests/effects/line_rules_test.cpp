// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What rain, leaping figures, breathing lines and rays keep to, whatever chance they had.
#include "audio/sample.h"
#include "effects/archpath.h"
#include "effects/lradial.h"
#include "effects/lrain.h"
#include "effects/sineline.h"
#include "support/owned.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace velm::test {
namespace {

TEST(Lrain, EndsOnTheGroundInARing) {
    const Owned<LRAIN_delete> rain(LRAIN_new());
    rain->gust = 0;
    std::int32_t landed = 0;
    for (std::int32_t frame = 0; frame < 300; ++frame) {
        LRAIN_advance(rain);
        for (std::int32_t i = 0; i < rain->count; ++i) {
            ASSERT_LT(rain->drops[i].y >> 16, 192 + (64 * rain->drops[i].near >> 8)) << frame;
        }
        for (const LRAIN_RING& ring : rain->rings) {
            const bool isNew = ring.age == 0;
            landed += isNew ? 1 : 0;
            ASSERT_TRUE(!isNew || (ring.y >= 192 && ring.y < 256));
        }
    }
    EXPECT_GT(landed, 300);
}

TEST(Archpath, LeapsFromWhereItLanded) {
    const Owned<ARCHPATH_delete> path(ARCHPATH_new());
    std::int32_t landings = 0;
    std::int32_t highest = path->ground;
    ARCHPATH_POSE last = path->trail[0];
    for (std::int32_t frame = 0; frame < 45 * 40; ++frame) {
        const std::int32_t goal = path->to;
        const bool lands = ARCHPATH_advance(path);
        const ARCHPATH_POSE& pose = path->trail[0];
        ASSERT_LE(std::abs(pose.x - last.x), (224 - 32) / 45 + 1) << "no leap of the leap, frame " << frame;
        ASSERT_TRUE(pose.x >= 32 && pose.x <= 224 && pose.y <= path->ground);
        ASSERT_TRUE(!lands || (pose.x == goal && pose.y == path->ground && path->from == goal));
        landings += lands ? 1 : 0;
        highest = std::min(highest, pose.y);
        last = pose;
    }
    EXPECT_EQ(landings, 40);
    EXPECT_TRUE(highest >= path->ground - path->rise && highest < path->ground - path->rise * 3 / 4);
}

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

} // namespace
} // namespace velm::test

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/world_view.h"

#include "foundation/sine.h"
#include "foundation/wide.h"
#include "image/pixel_bytes.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace velm {

namespace {

constexpr std::int32_t shadeCount = 64;

/// Water from its surface down into the deep.
constexpr auto waterShades = [] {
    std::array<std::uint32_t, shadeCount> made{};
    for (std::int32_t i = 0; i < shadeCount; ++i) {
        made[static_cast<std::size_t>(i)] =
            i < 2 ? (i == 0 ? 0xD8F8FF : 0x88E0FF) : curveMix(0x38B0F8, 0x0838A0, i * 6);
    }
    return made;
}();

/// Fire from nothing over red and yellow to white.
constexpr auto fireShades = [] {
    std::array<std::uint32_t, 256> made{};
    for (std::int32_t i = 0; i < 256; ++i) {
        const std::uint32_t red = curveMix(0x000000, 0xC02000, curveRise(i, 8, 90));
        const std::uint32_t yellow = curveMix(red, 0xFFB020, curveRise(i, 80, 170));
        made[static_cast<std::size_t>(i)] = curveMix(yellow, 0xFFF8C0, curveRise(i, 170, 255));
    }
    return made;
}();

/// A grain that stays where it is, 0..31.
constexpr std::int32_t grain(std::int32_t x, std::int32_t y) {
    const std::uint32_t mixed =
        static_cast<std::uint32_t>(x) * 0x9E3779B1U ^ static_cast<std::uint32_t>(y) * 0x85EBCA77U;
    return static_cast<std::int32_t>((mixed ^ mixed >> 13) * 0xC2B2AE35U >> 27);
}

/// Courses of bricks, each half a brick from the one above, darker towards the corners.
void layBricks(IMG& wall) {
    constexpr std::int32_t width = 32;
    constexpr std::int32_t height = 14;
    for (std::int32_t y = 0; y < wall.height; ++y) {
        for (std::int32_t x = 0; x < wall.width; ++x) {
            const std::int32_t course = y / height;
            const std::int32_t along = x + course % 2 * width / 2;
            const bool isJoint = y % height == 0 || along % width == 0;
            const std::int32_t light = 150 + 5 * grain(along / width, course) + grain(x, y) -
                                       std::abs(x - middle) - std::abs(y - middle) / 2;
            IMG_putPixel(&wall, x, y, curveDim(isJoint ? 0x0C0C18 : 0x2A2A48, light));
        }
    }
}

/// One pixel of the world among its neighbours.
struct Spot {
    const std::uint32_t* at;
    std::int32_t x, y;
    std::int32_t pitch; ///< pixels from row to row

    [[nodiscard]] bool inner(std::int32_t margin) const {
        return x >= margin && x < pitch - margin && y >= margin && y < pitch - margin;
    }
    [[nodiscard]] std::uint32_t off(std::int32_t dx, std::int32_t dy) const {
        return at[std::int64_t{dy} * pitch + dx];
    }
};

/// Resting water: its depth decides, slow ripples and the light on its left rim vary it.
std::uint32_t shadeWater(const Spot& spot, std::int32_t depth, const WorldLight& light) {
    const std::int32_t ripple =
        SINE_entry(spot.x * 41 + 18 * light.frame) + SINE_entry(spot.y * 59 - spot.x * 13 + 11 * light.frame);
    const std::int32_t rim = spot.x > 0 && spot.off(-1, 0) != waterBlue ? 12 : 0;
    const std::int32_t shade = depth < 2 ? depth : std::max(2, depth - rim + (ripple >> 13));
    return waterShades[static_cast<std::size_t>(std::min(shade, shadeCount - 1))];
}

/// Falling water: streaks that fall with it.
std::uint32_t shadeStream(const Spot& spot, std::int32_t frame) {
    constexpr std::int32_t fall = 3; // rows a frame
    const std::int32_t shade = 2 + (grain(spot.x, (spot.y - fall * frame) >> 2) >> 1);
    return waterShades[static_cast<std::size_t>(shade)];
}

/// Lit from above on the left, and by the fire from below; it glows while it is young.
std::uint32_t shadeStone(const Spot& spot, const WorldLight& light) {
    std::int32_t above = 0; // edges that face up or to the left, less those that face away
    std::int32_t below = 0; // edges that face the fire
    for (std::int32_t i = 1; i <= 3 && spot.inner(3); ++i) {
        const auto open = [&](std::int32_t dx, std::int32_t dy) {
            return spot.off(dx, dy) == stoneGrey ? 0 : 1;
        };
        above += open(0, -i) + open(-i, 0) - open(0, i) - open(i, 0);
        below += open(0, i);
    }
    const std::int32_t fromShine = std::abs(spot.x + spot.y / 2 - light.shineX);
    const std::int32_t shine = std::max(0, 170 - 5 * fromShine);
    const std::int32_t grey = 160 + 32 * above + 3 * grain(spot.x, spot.y) / 2 + shine;
    const std::int32_t warm = light.firelight * (3 * (spot.y - 60) / 4 + 60 * below) / curveFull;
    const std::uint32_t lit = RGB888_add(curveDim(0xA098A8, grey), curveDim(0x803008, warm));
    const std::int32_t age = spot.y - light.glowRow;
    const std::int32_t glow = age < 0 ? 0 : std::max(0, curveFull - 4 * age);
    return curveMix(RGB888_add(lit, curveDim(0xFFE8A0, shine)), 0xFF6818, glow);
}

/// Polished: a bright rim above, the fire's red from below.
std::uint32_t shadeRock(const Spot& spot, const WorldLight& light) {
    const bool isTop = spot.y > 0 && spot.off(0, -1) != rockPixel;
    const std::uint32_t body = curveDim(0x484058, 128 + 3 * grain(spot.x, spot.y));
    return isTop ? curveMix(0x9080B0, 0xFF9040, light.firelight) : body;
}

std::uint32_t shadeGlass(const Spot& spot, const WorldLight& light) {
    const std::int32_t sheen = SINE_scaled(90, 6 * spot.x + 3 * spot.y - 12 * light.frame);
    return curveMix(0x5088B8, 0xE8F8FF, 100 + sheen);
}

/// What is not empty, without fire.
std::uint32_t shade(const Spot& spot, bool isInside, std::int32_t depth, const WorldLight& light,
                    std::uint32_t wall) {
    switch (*spot.at) {
    case waterBlue:
        return isInside || spot.y >= poolTop ? shadeWater(spot, depth, light)
                                             : shadeStream(spot, light.frame);
    case glassPixel:
        return spot.x < light.revealed ? shadeGlass(spot, light) : wall;
    case rockPixel:
        return shadeRock(spot, light);
    case stoneGrey:
        if (isInside) {
            return shadeStone(spot, light);
        }
        break;
    default:
        break;
    }
    return isSteam(*spot.at)
               ? RGB888_add(wall, curveDim(0xC0D0E0, static_cast<std::int32_t>(*spot.at & 0xFF)))
               : wall;
}

/// Heat rises, spreads and cools; each spark renews it.
void spreadHeat(IMG& heat, const IMG& world) {
    constexpr std::uint32_t cooling = 5;
    runWide([=, row = heat.pixels, things = world.pixels, width = heat.width, height = heat.height] {
        for (std::int64_t y = 0; y + 1 < height; ++y) {
            for (std::int64_t i = y * width + 1; i < (y + 1) * width - 1; ++i) {
                const std::uint32_t below = row[i + width - 1] + 2 * row[i + width] + row[i + width + 1];
                const std::uint32_t spark = (things[i] & 0xFFFF) == 0 ? (things[i] >> 16) * 3 / 4 : 0;
                row[i] = std::max(spark, std::max(below / 4, cooling) - cooling);
            }
        }
    });
}

/// A row of the wall by the light of the fire, which shines most where it burns.
void lightWall(std::uint32_t* shown, const std::uint32_t* wall, std::int32_t y, const WorldLight& light) {
    const std::int32_t near = std::max(0, curveFull - 2 * std::abs(y - 176));
    const std::uint32_t glow = curveDim(0x401404, light.firelight * near / curveFull);
    std::copy_n(wall, settings.windowWidth, shown);
    if (glow != 0) {
        runWide([=, width = settings.windowWidth] { combineBytes(glow, shown, width, byteSum); });
    }
}

/// What the pool shows of the picture above, `depth` below its surface.
std::uint32_t mirrored(const Spot& spot, std::int32_t depth, std::int32_t frame) {
    const std::int32_t fromY = spot.y - 2 * depth - 1;
    const std::int32_t fromX = spot.x + SINE_scaled(1 + depth / 8, 90 * spot.y + 20 * frame);
    return fromX < 0 || fromX >= spot.pitch || fromY < 0 ? 0 : rowOf(*demo.screen, fromY)[fromX];
}

/// A row of all that a picture is made of.
struct Strip {
    std::uint32_t* shown; ///< the wall so far
    const std::uint32_t *things, *inside, *warmth;
    std::uint32_t* depths;
};

constexpr std::int32_t block = 32; ///< pixels that are looked at together; the window has whole ones

/// True where nothing but the wall is seen for a block from x on.
bool isBare(const Strip& strip, std::int32_t x) {
    constexpr std::uint32_t coolest = 8; // fire is black up to here
    static_assert(fireShades[coolest] == 0);
    std::uint32_t seen = 0;
    for (std::int32_t i = x; i < x + block; ++i) {
        seen |= strip.things[i] | (strip.warmth[i] > coolest ? 1 : 0);
    }
    return seen == 0;
}

/// Draws what is at column x, and the fire there.
void drawSpot(const Strip& strip, const Spot& spot, const WorldLight& light) {
    constexpr std::int32_t mirrorWeight = 110;
    std::uint32_t& shown = strip.shown[spot.x];
    std::uint32_t& depth = strip.depths[spot.x];
    const auto deep = static_cast<std::int32_t>(depth);
    const bool isWater = *spot.at == waterBlue;
    if (*spot.at != 0) {
        shown = shade(spot, strip.inside[spot.x] != 0, deep, light, shown);
        if (isWater && spot.y >= poolTop && deep > 1) {
            shown = curveMix(shown, mirrored(spot, deep, light.frame), mirrorWeight);
        }
    }
    depth = isWater ? depth + 1 : 0;
    if (const std::uint32_t fire = fireShades[strip.warmth[spot.x] & 0xFF]; fire != 0) {
        shown = RGB888_add(shown, fire);
    }
}

} // namespace

WorldView::WorldView(void (*build)(IMG* wall))
    : wall(newWindowPicture(),
           [build](IMG& made) {
               layBricks(made);
               build(&made);
           }),
      heat(newWindowPicture()), depths(IMG_newSized(settings.windowWidth, 1)) {}

void shadeWorld(WorldView& view, const IMG& world, const IMG& vessels, const WorldLight& light) {
    spreadHeat(*view.heat, world);
    IMG_fill(view.depths, 0);
    for (std::int32_t y = 0; y < world.height; ++y) {
        const Strip strip = {rowOf(*demo.screen, y), rowOf(world, y), rowOf(vessels, y), rowOf(*view.heat, y),
                             view.depths->pixels};
        lightWall(strip.shown, rowOf(*view.wall, y), y, light);
        for (std::int32_t left = 0; left < world.width; left += block) {
            if (isBare(strip, left)) {
                std::fill_n(strip.depths + left, block, 0);
                continue;
            }
            for (std::int32_t x = left; x < left + block; ++x) {
                drawSpot(strip, {strip.things + x, x, y, world.width}, light);
            }
        }
    }
}

} // namespace velm

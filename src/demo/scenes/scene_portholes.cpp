// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 3, the portholes: a hole opens in the dark, and another world is seen through it. A city
// without end drifts by behind it; more holes open and circle about the first, and letters as large as houses
// step in. Then the holes swell, the eye falls through them, rolling, towards one world, and arrives: it
// fills the last window, the four letters bounce in front of it, and the window closes like an iris. The key
// s chooses the other world.
#include "demo/scenes/acts.h"
#include "demo/scenes/beat.h"
#include "demo/scenes/caption.h"
#include "demo/scenes/copper_letters.h"
#include "demo/scenes/enlarge.h"
#include "demo/scenes/letters.h"
#include "effects/backmove.h"
#include "effects/circle.h"
#include "foundation/fixed.h"
#include "foundation/sine.h"

#include <algorithm>
#include <string_view>

namespace velm {

namespace {

constexpr std::int32_t frames = 750;
constexpr std::int32_t holeCount = 6;

constexpr std::int32_t cityBegin = barFrames / 6;
constexpr std::int32_t holesBegin = 2 * barFrames; // the others open, one by one
constexpr std::int32_t wordBegin = 3 * barFrames;  // the large letters come in
constexpr std::int32_t swellBegin = 5 * barFrames; // the holes grow over everything: the fall begins
constexpr std::int32_t arrival = 6 * barFrames;    // and is over soon
constexpr std::int32_t wordEnd = swellBegin + 20;
constexpr std::int32_t diveEnd = arrival + 30;
constexpr std::int32_t irisBegin = 645;
constexpr std::int32_t irisEnd = 730;

constexpr std::int32_t coverAll = 190; // radius about the middle that leaves no corner, pixels
constexpr std::int32_t window = 122;   // radius of the last one

/// Where a world is best seen: pixels of its picture, and how often it is doubled, 8.8, to fill the last
/// window.
struct Sight {
    std::int32_t x, y, octaves;
};
constexpr Sight ringedPlanet = {61, 33, 294};
constexpr Sight sunset = {64, 32, 505};

/// One of the worlds behind the holes.
struct World {
    World(const IMG* picture, const Sight& best)
        : tile(mirrored(picture)), large(enlarged(picture)), sight(best) {}
    Picture tile;  ///< drifts by before the fall
    Picture large; ///< is fallen into
    Sight sight;
};

Owned<BACKMOVE_delete> makeGround(const IMG* picture, std::int32_t speedX, std::int32_t speedY,
                                  std::int32_t reachX, std::int32_t reachY) {
    return Owned<BACKMOVE_delete>(BACKMOVE_new(), [=](BACKMOVE& ground) {
        BACKMOVE_setPicture(&ground, picture);
        ground.speedX = speedX;
        ground.speedY = speedY;
        ground.reachX = reachX;
        ground.reachY = reachY;
    });
}

/// One nest about the middle, as wide as the screen.
void prepareHoops(CIRCLE& hoops) {
    CIRCLE_setCount(&hoops, 1);
    hoops.largest = coverAll + 90;
    hoops.spacing = 28;
    hoops.rings = 1 + hoops.largest / hoops.spacing;
}

struct Portholes {
    Picture city{doubled(demo.pictureWide)};
    World planets{demo.pictureB, ringedPlanet}; ///< the other world while flagS is set
    World evening{demo.pictureA, sunset};       ///< the other world while it is clear
    Owned<BACKMOVE_delete> near = makeGround(city, fixedOne, 0, 24, 0); ///< the city, dark
    Owned<BACKMOVE_delete> far =
        makeGround(planets.tile, -3 * fixedOne / 2, fixedOne, 40, 30); ///< the other world, bright
    Owned<CIRCLE_delete> holes{CIRCLE_new(), [](CIRCLE& made) { CIRCLE_setCount(&made, holeCount); }};
    Owned<CIRCLE_delete> hoops{CIRCLE_new(), prepareHoops}; ///< fly past during the fall
    CopperLetters letters;
    Picture mask{IMG_clone(demo.screen)}; ///< white where a hole is
    Picture view{IMG_clone(demo.screen)}; ///< the other world, cut out
    Lens eye{};                           ///< where it looked when the fall began, pixels in 16.16

    [[nodiscard]] const World& world() const { return settings.flagS != 0 ? planets : evening; }
};

/// A weight that swells and ebbs by a quarter, out of step from hole to hole.
std::int32_t breathing(std::int32_t size, std::int32_t hole, std::int32_t frame) {
    return size + SINE_scaled(size / 7, 9 * frame + 170 * hole);
}

/// The first hole stays in the middle: it opens, breathes, swells, becomes the last window and closes.
std::int32_t radiusOfFirst(std::int32_t frame) {
    std::int32_t radius = breathing(46, 0, frame) * curveEase(frame, 2, 50) >> 8;
    radius = curveBetween(radius, coverAll, curveEase(frame, swellBegin, arrival - 10));
    radius = curveBetween(radius, window, curveEase(frame, arrival - 10, arrival + 40));
    return curveBetween(radius, 0, curveEase(frame, irisBegin, irisEnd));
}

/// The others circle about it, ever faster, and are flung out at last.
void moveHole(CIRCLE_BODY& body, std::int32_t hole, std::int32_t frame) {
    constexpr std::int32_t apart = barFrames / 4; // frames from one that opens to the next
    const std::int32_t opens = holesBegin + apart * (hole - 1);
    const std::int32_t flung = curveEase(frame, swellBegin, arrival);
    const std::int32_t faster = std::max(frame - swellBegin + 60, 0);
    const std::int32_t angle =
        hole * SINE_tableLength / (holeCount - 1) + 3 * frame / 2 + faster * faster / 48 - SINE_quarter;
    const std::int32_t way = curveBetween(0, 88, curveEase(frame, opens, opens + 50)) + flung;
    body.x = (middle + SINE_cosineScaled(way, angle)) * fixedOne;
    body.y = (middle + SINE_scaled(way, angle)) * fixedOne;
    const std::int32_t size = breathing(27, hole, frame) + flung / 5;
    body.radius = (size * curveEase(frame, opens, opens + 40) >> 8) * fixedOne;
}

void moveHoles(Portholes& show, std::int32_t frame) {
    CIRCLE_BODY* const bodies = show.holes->bodies;
    bodies[0] = {middle * fixedOne, middle * fixedOne, 0, 0, radiusOfFirst(frame) * fixedOne, 0, 0};
    for (std::int32_t i = 1; i < show.holes->count; ++i) {
        bodies[i].speedX = bodies[i].speedY = 0;
        moveHole(bodies[i], i, frame);
    }
}

void drawCity(Portholes& show, std::int32_t frame) {
    constexpr std::int32_t dusk = 200; // brightness of the city, of 256
    constexpr std::int32_t night = 120;
    show.near->brightness = curveBetween(0, dusk, curveEase(frame, cityBegin, holesBegin - 60)) -
                            curveBetween(0, dusk - night, curveEase(frame, holesBegin, wordBegin)) -
                            curveBetween(0, night, curveEase(frame, swellBegin, arrival - 20));
    show.near->rippleReach = curveRise(frame, wordBegin, swellBegin) / 24;
    BACKMOVE_advance(show.near);
    BACKMOVE_draw(show.near, demo.screen);
}

/// Remembers where the eye looks: from here it falls.
void enterFall(Portholes& show) {
    const BACKMOVE& far = *show.far;
    show.eye.x =
        static_cast<std::int32_t>(far.x) + (SINE_scaled(far.reachX, far.pathX.phase) + middle) * fixedOne;
    show.eye.y =
        static_cast<std::int32_t>(far.y) + (SINE_scaled(far.reachY, far.pathY.phase) + middle) * fixedOne;
}

/// Draws the other world as the fall shows it.
void drawFall(Portholes& show, std::int32_t frame) {
    const World& world = show.world();
    const std::int32_t fallen = curveEase(frame, swellBegin, diveEnd);
    const std::int32_t turned = curveEase(frame, swellBegin + 30, diveEnd + 30);
    const std::int32_t away = curveEase(frame, irisBegin, irisEnd);
    const std::int32_t left = curveFull - curveEase(frame, swellBegin, arrival);
    const auto placeOf = [left](std::int32_t from, std::int32_t to, std::int32_t period) {
        return to * fixedOne - nearestWay(from, to, period) / curveFull * left;
    };
    Lens lens;
    lens.x = placeOf(show.eye.x, world.sight.x, show.far->picture->width);
    lens.y = placeOf(show.eye.y, world.sight.y, show.far->picture->height);
    lens.zoom = curveDoubled(curveBetween(0, world.sight.octaves, fallen) - away);
    lens.angle = turned * SINE_tableLength / curveFull + SINE_scaled(14, 6 * (frame - diveEnd));
    lens.others = curveFull - curveEase(frame, swellBegin + 40, arrival);
    drawLens(world.large, lens, show.view);
}

void drawWorldView(Portholes& show, std::int32_t frame) {
    if (frame < swellBegin) {
        BACKMOVE_setPicture(show.far, show.world().tile);
        BACKMOVE_draw(show.far, show.view);
        BACKMOVE_advance(show.far);
        return;
    }
    drawFall(show, frame);
}

/// Cuts the other world out with the discs of all holes and lays it over the city.
void drawWorld(Portholes& show, std::int32_t frame) {
    drawWorldView(show, frame);
    IMG_fill(show.mask, 0);
    for (std::int32_t i = 0; i < show.holes->count; ++i) {
        const CIRCLE_BODY& body = show.holes->bodies[i];
        if (body.radius > 0) {
            CIRCLE_drawDisc(show.mask, body.x >> 16, body.y >> 16, body.radius >> 16, 0xFFFFFF);
            // Black glass: what the other world leaves black must not show the city.
            CIRCLE_drawDisc(demo.screen, body.x >> 16, body.y >> 16, body.radius >> 16, 0);
        }
    }
    IMG_andMask(show.mask, show.view);
    IMG_draw(show.view, demo.screen);
}

/// A neon tube around every hole: one bright ring between dim ones, which glow up with the beat.
void drawRims(Portholes& show, std::int32_t frame) {
    constexpr std::int32_t glow[] = {curveFull, 150, 90, 50, 25};
    const std::int32_t light = 200 + beatWeight(20, 2) * 56 / curveFull;
    for (std::int32_t i = 0; i < show.holes->count; ++i) {
        const CIRCLE_BODY& body = show.holes->bodies[i];
        const std::int32_t radius = body.radius >> 16;
        for (std::int32_t k = -4; radius > 0 && k <= 4; ++k) {
            CIRCLE_addRing(demo.screen, body.x >> 16, body.y >> 16, radius + k,
                           curveHue(3 * frame + 256 * i, glow[k < 0 ? -k : k] * light >> 8));
        }
    }
}

/// Hoops that come out of the middle during the fall, each in the light of the moment, and a last one where
/// the iris has closed.
void drawHoops(Portholes& show, std::int32_t frame) {
    const std::int32_t weight = curveStay(frame, swellBegin + 10, irisBegin, 60) * 3 / 4;
    const std::int32_t step = show.hoops->spacing;
    const std::int32_t radius = show.hoops->largest - step + 3 * frame % step;
    constexpr std::int32_t centre = middle * fixedOne;
    show.hoops->bodies[0] = {centre, centre, 0, 0, radius * fixedOne, 0, curveHue(4 * frame, weight)};
    CIRCLE_drawAdd(show.hoops, demo.screen);
}

void drawLastRing(Portholes&, std::int32_t frame) {
    const std::int32_t age = frame - irisEnd + 12;
    const std::int32_t weight = curveFull - curveRise(age, 0, 32);
    for (std::int32_t k = 0; k < 3; ++k) {
        CIRCLE_addRing(demo.screen, middle, middle, 4 * age - 5 * k, curveDim(0x80C0FF, weight >> k));
    }
}

/// Large letters step in from the right one by one, sway, and leave to the left.
void drawLargeLetter(const Portholes& show, char letter, std::int32_t place, std::int32_t x, std::int32_t y,
                     std::int32_t frame) {
    constexpr std::int32_t apart = barFrames / 9, entry = 36, outside = 260;
    const std::int32_t enters = wordBegin + apart * place;
    const std::int32_t leaves = wordEnd - 60 + 3 * place;
    x += curveBetween(outside, 0, curveEase(frame, enters, enters + entry)) -
         curveBetween(0, outside, curveEase(frame, leaves, leaves + entry));
    show.letters.draw(letter, x, y + SINE_scaled(8, 12 * frame + 90 * place));
}

void drawLargeWord(Portholes& show, std::int32_t frame) {
    constexpr struct {
        std::string_view text;
        std::int32_t y, step, first; ///< `first` counts the letters before
    } rows[] = {{"OTHER", 14, 45, 0}, {"SIDE", 178, 48, 5}};
    for (const auto& row : rows) {
        const auto length = static_cast<std::int32_t>(row.text.size());
        for (std::int32_t i = 0; i < length; ++i) {
            const std::int32_t left =
                middle + (2 * i - length + 1) * row.step / 2 - show.letters.face->width / 2;
            drawLargeLetter(show, row.text[static_cast<std::size_t>(i)], row.first + i, left, row.y, frame);
        }
    }
}

/// The four bobbing letters rise into the last window and sink again.
void drawBobbingLetters(Portholes&, std::int32_t frame) {
    constexpr std::int32_t line = 214, below = 290;
    const std::int32_t shown =
        curveEase(frame, arrival + 10, arrival + 50) - curveEase(frame, irisBegin - 20, irisBegin + 16);
    drawLettersAt(middle - lettersWidth / 2, curveBetween(below, line, shown));
}

void drawCaptions(Portholes&, std::int32_t frame) {
    constexpr TypedCaption captions[] = {{"A CITY", 28, 50, 165, 300},
                                         {"WITHOUT END", 232, 70, 160, 400},
                                         {"AND WAYS", 28, 185, 256, 200},
                                         {"TO LEAVE IT", 232, 200, 256, 300},
                                         {"WELCOME", 40, arrival + 20, irisBegin - 5, 1200}};
    typeCaptions(captions, frame, frame);
}

constexpr Act<Portholes> acts[] = {{0, frames, moveHoles},
                                   {0, arrival, drawCity},
                                   {0, swellBegin, drawWorld},
                                   {swellBegin, irisEnd, drawWorld, enterFall},
                                   {swellBegin, irisBegin, drawHoops},
                                   {0, frames, drawRims},
                                   {irisEnd - 12, frames, drawLastRing},
                                   {wordBegin, swellBegin + 30, drawLargeWord},
                                   {arrival, irisBegin + 20, drawBobbingLetters},
                                   {0, frames, drawCaptions}};

} // namespace

void VELM4030_sceneExtra3() {
    play({}, frames, acts);
}

} // namespace velm

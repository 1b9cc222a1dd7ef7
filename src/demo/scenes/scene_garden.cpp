// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Extra scene 9, a garden through a year of eight seasons, each with one hero: a bud, braided vines, a lake,
// a flower, a trunk, a sun, a planet, and at last everything in bloom. Chance draws the curves, the hues and
// the waves with a generator of its own, which starts the same each time: the garden is always this one, and
// the music's choices stay. A hero goes while the next one comes, and what is to come shows itself faintly
// behind.
#include "demo/scenes/acts.h"
#include "demo/scenes/beat.h"
#include "demo/scenes/blossom.h"
#include "foundation/sine.h"

#include <algorithm>

namespace velm {

namespace {

constexpr std::int32_t frames = 1500;
constexpr std::int32_t seasonFrames = 2 * barFrames;
constexpr std::int32_t seasons = 8;
constexpr std::int32_t growFrames = 60;
constexpr std::int32_t end = 1446; // the last season fades from here on
constexpr std::int32_t ribbonCount = 3;
constexpr std::int32_t ribbonWidth = 20;
constexpr std::int32_t ribbonLength = 256;
constexpr std::uint32_t seed = 0x20150614;

enum class Hero : std::uint8_t { bud, vines, lake, flower, trunk, sun, planet, bloom };

/// Three ribbons a third of a turn apart, which braid each other. They show one picture.
template <auto Make, auto Delete>
struct Braid {
    Braid(std::int32_t width, std::int32_t height) : thread(IMG_newSized(width, height)) {
        for (std::int32_t i = 0; i < ribbonCount; ++i) {
            ribbons[i] = Owned<Delete>(Make(), [&](auto& made) {
                made.source = thread;
                made.x = width > height ? 0 : (settings.windowWidth - width) / 2;
                made.y = width > height ? (settings.windowHeight - height) / 2 : 0;
                made.wave.phase = i * SINE_tableLength / ribbonCount;
                made.wave.speed = 8;
            });
        }
    }

    Picture thread; ///< of the ribbon's size
    Owned<Delete> ribbons[ribbonCount];
};

struct Garden {
    Owned<RANDOM_delete> random{RANDOM_new(), [](RANDOM& made) { made.counter = seed; }};
    Blossom blossom;
    std::int32_t ribbonHue[ribbonLength] = {};
    Braid<DISTY_new, DISTY_delete> lying{ribbonLength, ribbonWidth};
    Braid<DISTX_new, DISTX_delete> standing{ribbonWidth, ribbonLength};
    Picture petals{newWindowPicture()}; ///< a blossom before it is mirrored
    Picture view{newWindowPicture()};   ///< the landscape of the season, as bright as it is to be
    Picture bent{newWindowPicture()};   ///< the same, bent by rows
    // Whole turns over the window: one down, two across.
    Owned<DISTX_delete> rows = makeBend<DISTX_new, DISTX_delete>(view, 20, 7, 4);
    Owned<DISTY_delete> columns = makeBend<DISTY_new, DISTY_delete>(bent, 22, 5, 8);
};

/// How much of a hero is to be seen: its season long, and a little into the next one.
std::int32_t presence(Hero hero, std::int32_t frame) {
    const std::int32_t begin = static_cast<std::int32_t>(hero) * seasonFrames;
    const std::int32_t last = hero == Hero::bloom ? frames - 4 : begin + seasonFrames + growFrames;
    const std::int32_t fade = hero == Hero::bloom ? last - end : growFrames;
    return std::min(curveEase(frame, begin, begin + growFrames),
                    curveFull - curveEase(frame, last - fade, last));
}

/// A season begins: chance draws all that is new in it.
void beginSeason(Garden& garden, std::int32_t frame) {
    if (frame % seasonFrames != 0 || frame / seasonFrames >= seasons) {
        return;
    }
    const auto hero = static_cast<Hero>(frame / seasonFrames);
    if (hero == Hero::bud || hero == Hero::flower || hero == Hero::bloom) {
        constexpr std::int32_t related = 150; // hues, of 1536 all around
        constexpr std::int32_t various = 256;
        plantBlossom(garden.random, garden.blossom, hero == Hero::bloom ? various : related);
    }
    if (hero == Hero::vines || hero == Hero::trunk) {
        std::int32_t hue = RANDOM_below(garden.random, hueCount);
        const std::int32_t turn = RANDOM_below(garden.random, 5) + 2;
        for (std::int32_t& place : garden.ribbonHue) {
            place = hue;
            hue += turn;
        }
    }
}

/// Adds a picture, as large as the view is wide, and the same upside down below it: no row has an edge. What
/// is there must not be finer than the picture's enlarged pixels.
void addMirroredView(Garden& garden, const IMG* picture, std::int32_t weight) {
    IMG& view = *garden.view;
    const std::int32_t scale = view.width / picture->width;
    const std::uint32_t* from = picture->pixels;
    for (std::int32_t y = 0; y < picture->height * scale; y += scale) {
        std::uint32_t* const row = rowOf(view, y);
        for (std::int32_t x = 0; x < view.width; x += scale) {
            const std::uint32_t colour = RGB888_add(row[x], curveDim(*from++, weight));
            std::fill_n(row + x, scale, colour);
        }
        for (std::int32_t copy = 0; copy < scale; ++copy) {
            std::copy_n(row, view.width, rowOf(view, y + copy));
            std::copy_n(row, view.width, rowOf(view, view.height - 1 - y - copy));
        }
    }
}

/// A landscape and how bright it is in each season: nearly all as the hero, a little around its season.
struct Landscape {
    const IMG* picture; ///< twice its height, enlarged to the window's width, is the window's
    std::int32_t light[seasons];
};

std::int32_t lightOf(const Landscape& landscape, std::int32_t frame) {
    const std::int32_t season = std::min(frame / seasonFrames, seasons - 1);
    const std::int32_t before = season > 0 ? landscape.light[season - 1] : 0;
    const std::int32_t come = curveEase(frame - season * seasonFrames, 0, growFrames);
    const std::int32_t left = curveFull - curveEase(frame, end, frames - 4);
    return curveBetween(before, landscape.light[season], come) * left / curveFull;
}

/// The landscapes, each over its image in a lake, bent by rows, then by columns, behind everything.
void drawLandscape(Garden& garden, std::int32_t frame) {
    // The coarse ones first: what is added last keeps its detail.
    const Landscape landscapes[] = {{demo.pictureB, {56, 0, 0, 0, 0, 0, 240, 110}},
                                    {demo.pictureA, {0, 0, 0, 0, 56, 210, 0, 0}},
                                    {demo.pictureWide, {0, 64, 240, 48, 0, 0, 0, 0}}};
    IMG_fill(garden.view, 0);
    IMG_fill(garden.bent, 0);
    for (const Landscape& landscape : landscapes) {
        const std::int32_t light = lightOf(landscape, frame);
        if (light > 0) {
            addMirroredView(garden, landscape.picture, light);
        }
    }
    DISTX_draw(garden.rows, garden.bent);
    DISTY_draw(garden.columns, demo.screen);
    DISTX_advance(garden.rows);
    DISTY_advance(garden.columns);
}

/// Paints a ribbon, lying or upright, round by its shading. It grows from one end and goes to the other.
void paintRibbon(const Garden& garden, IMG* ribbon, std::int32_t weight, bool grows, std::int32_t light) {
    const bool lies = ribbon->width > ribbon->height;
    const std::int32_t length = ribbonLength * weight / curveFull;
    IMG_fill(ribbon, 0);
    for (std::int32_t i = 0; i < length; ++i) {
        const std::int32_t along = grows == lies ? i : ribbonLength - 1 - i; // the trunk grows upwards
        const std::int32_t tip = std::min((length - i) * 16, curveFull);
        const std::uint32_t colour =
            curveHue(garden.ribbonHue[along], (weight < curveFull ? tip : curveFull) * light / curveFull);
        for (std::int32_t thread = 0; thread < ribbonWidth; ++thread) {
            const std::int32_t bright = SINE_entry((2 * thread + 1) * SINE_quarter / ribbonWidth) >> 7;
            // Never quite black: the edge of a ribbon sets it off from what lies behind.
            const std::uint32_t shaded = curveDim(colour, bright * bright / curveFull) | 0x010101;
            IMG_putPixel(ribbon, lies ? along : thread, lies ? thread : along, shaded);
        }
    }
}

/// Three ribbons braid each other.
template <typename Braided, typename Draw, typename Advance>
void drawRibbons(const Garden& garden, const Braided& braid, Draw drawOne, Advance advanceOne, Hero hero,
                 std::int32_t frame) {
    constexpr std::int32_t amplitude = 210;
    constexpr std::int32_t dimmed = 110; // where the flower is the hero
    constexpr std::int32_t step = 6;
    const std::int32_t weight = std::max(presence(hero, frame), presence(Hero::bloom, frame));
    const bool blooms = frame >= static_cast<std::int32_t>(Hero::bloom) * seasonFrames;
    const bool grows = blooms ? frame < end : frame < (static_cast<std::int32_t>(hero) + 1) * seasonFrames;
    if (weight > 0) {
        paintRibbon(garden, braid.thread, weight, grows, blooms ? dimmed : curveFull);
    }
    for (const auto& ribbon : braid.ribbons) {
        ribbon->amplitude = amplitude * (128 + weight / 2) / curveFull + beatWeight(60) / 16;
        ribbon->wave.offsetStep = step;
        if (weight > 0) {
            drawOne(ribbon, demo.screen);
        }
        advanceOne(ribbon);
    }
}

void drawBraids(Garden& garden, std::int32_t frame) {
    drawRibbons(garden, garden.lying, DISTY_draw, DISTY_advance, Hero::vines, frame);
    drawRibbons(garden, garden.standing, DISTX_draw, DISTX_advance, Hero::trunk, frame);
}

/// A bud, a flower of three petals, and in the end the flower of all, which opens with the music.
void drawBlossoms(Garden& garden, std::int32_t frame) {
    struct Stage {
        Hero hero;
        std::int32_t petals;
        bool isStar;
    };
    constexpr Stage stages[] = {{Hero::bud, 2, false}, {Hero::flower, 3, false}, {Hero::bloom, 2, true}};
    for (const Stage& stage : stages) {
        const std::int32_t weight = presence(stage.hero, frame);
        if (weight <= 0) {
            continue;
        }
        const std::int32_t beat = stage.isStar ? beatWeight(60) : 0;
        advanceBlossom(garden.blossom);
        IMG_fill(garden.petals, 0);
        drawBlossom(garden.blossom, garden.petals, stage.petals, frame,
                    weight * (160 + beat * 3 / 8) / curveFull);
        addMirrored(garden.petals, demo.screen, stage.isStar);
    }
}

constexpr Act<Garden> acts[] = {
    {0, frames, beginSeason}, {0, frames, drawLandscape}, {0, frames, drawBraids}, {0, frames, drawBlossoms}};

} // namespace

void VELM4030_sceneExtra9() {
    VELM4030_fadeOut();
    play({.glare = 1}, frames, acts);
}

} // namespace velm

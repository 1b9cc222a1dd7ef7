// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A pond at night, seen from its shore: sky, hills and a moon above the horizon, and below it the water,
// which mirrors them and carries a picture, the plane, in perspective.
//
//     PondView view;
//     view.moonY = 60;
//     CIRCLE_drawAdd(rings, view.plane);
//     view.draw(demo.screen);
#pragma once

#include "demo/scenes/acts.h"

#include <array>
#include <cstdint>

namespace velm {

class PondView {
public:
    static constexpr std::int32_t horizon = 88; ///< row where the water begins
    static constexpr std::int32_t shore = 132;  ///< row on which things touch the water

    Picture plane{newWindowPicture()}; ///< what swims on the water, seen from above; the far end is row 0
    Picture bands{newWindowPicture()}; ///< a second plane, seen while `hasBands`
    Picture above{newWindowPicture()}; ///< what hovers over the water; 0 pixels are air
    std::int32_t moonY = horizon;      ///< row of the moon's middle
    std::int32_t moonLight = 0;        ///< how far it outshines its usual light, 0..256
    bool hasBands = false;
    std::int32_t swell = 0; ///< of the waves that bend the water, 0..256

    PondView();

    /// Where the plane lies below a column of the row `shore`.
    static std::int32_t planeX(std::int32_t x);
    static std::int32_t planeY();

    /// Draws everything but what hovers, of which the water has the mirror image.
    void draw(IMG* target);

private:
    /// The plane's part that a row of the window shows.
    struct Row {
        std::int32_t v;     ///< row of the plane
        std::int32_t step;  ///< 24.8; columns of the plane a pixel
        std::int32_t light; ///< 0..256; dark towards both ends
    };
    static constexpr std::int32_t water = 256 - horizon; ///< rows of it
    static constexpr std::int32_t top = horizon - 8; ///< first row of `surface`, which bends down from there
    static constexpr std::int32_t moonReach = 75; ///< from the moon's middle to the end of its halo, pixels

    static constexpr std::int32_t block = 32; ///< pixels that are looked at together

    static Row rowAt(std::int32_t below);
    void drawMoon();
    void mirror(const IMG* source, std::int32_t axis, std::int32_t weight);
    void layBlock(const Row& row, const IMG& flat, std::uint32_t* to, std::int32_t left,
                  std::int32_t count) const;
    void lay(const IMG* flat);

    Picture sky{IMG_newSized(256, horizon)};                  ///< with the stars
    Picture view{IMG_newSized(256, horizon)};                 ///< the sky of this frame
    Picture moon{IMG_newSized(2 * moonReach, 2 * moonReach)}; ///< with its halo
    Picture surface{IMG_newSized(256, 256 - top)};            ///< the water, flat
    Picture bent{IMG_newSized(256, 256 - top)};               ///< the water, its rows bent
    Owned<DISTX_delete> bendRows = makeBend<DISTX_new, DISTX_delete>(surface, 0, 14, 29);
    Owned<DISTY_delete> bendColumns = makeBend<DISTY_new, DISTY_delete>(bent, 0, 11, 7);
    std::array<std::int32_t, 256> edge{}; ///< light of a column of window or plane, 0 at the edges, 0..256
};

} // namespace velm

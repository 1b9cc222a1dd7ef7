// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A drum of plates with a name on each, seen from the front under a lens: the plate in the middle stands
// there at its full size, those above and below it at half of it, flatter and darker the further the drum
// turns them away. Plates have numbers without an end either way; who owns the drum says which name a plate
// bears.
//
//     NameDrum drum;
//     drum.place = 3 << 8; // plate 3 in front
//     drum.draw(demo.screen, [](std::int32_t plate) { return nameOf(plate); });
#pragma once

#include "demo/scenes/acts.h"

#include <cstdint>
#include <string_view>

namespace velm {

class NameDrum {
public:
    static constexpr std::int32_t half = 104;       ///< height from the front to where it turns away, pixels
    static constexpr std::int32_t frontLetters = 9; ///< of the name in front, whole ones
    static constexpr std::int32_t letterWidth = 16; ///< of the name in front, pixels
    static constexpr std::int32_t one = 1 << 8;     ///< from plate to plate

    std::int32_t place = 0;        ///< 24.8; the plate that faces the viewer
    std::int32_t open = curveFull; ///< how far the drum has unfolded, 0..256
    std::int32_t hue = 0;          ///< of plate 0
    std::int32_t flare = 0;        ///< light on the plate in front, 0..256
    std::int32_t wave = 0; ///< 24.8; rows from the front to where a wave of light is; 0: there is none
    std::int32_t run = 0;  ///< how far the name in front has run to the left, pixels

    NameDrum();

    /// Draws the drum about the row `middle`, each plate with what nameOf(plate) returns.
    template <typename NameOf>
    void draw(IMG* target, NameOf nameOf) {
        for (std::int32_t plate = firstPlate(); plate <= lastPlate(); ++plate) {
            write(plate, nameOf(plate));
        }
        drawRows(target);
    }

private:
    static constexpr std::int32_t rows = 24;   ///< of a plate, pixels of `names`
    static constexpr std::int32_t kept = 32;   ///< plates written at a time, more than are ever seen
    static constexpr std::int32_t width = 156; ///< of the drum, pixels

    /// What a row of the unfolded drum shows.
    struct Row {
        std::int32_t v;     ///< 24.8; rows of plates below the front
        std::int32_t left;  ///< column where the drum begins
        std::int32_t step;  ///< 24.8; columns of `names` a pixel
        std::int32_t light; ///< 0..256
        std::int32_t front; ///< 256 under the lens, 0 away from it
    };
    /// What stands on a kept plate.
    struct Written {
        std::int32_t plate, run;
        bool is = false;
    };

    std::int32_t firstPlate() const { return (place >> 8) - reach; }
    std::int32_t lastPlate() const { return (place >> 8) + reach + 1; }
    void write(std::int32_t plate, std::string_view name);
    void drawRows(IMG* target) const;
    void drawRow(const Row& row, const Row& next, std::uint32_t* pixels) const;

    Picture names; ///< white on black, `kept` plates one below the other
    Row shape[2 * half + 1] = {};
    Written written[kept] = {};
    std::int32_t reach = 0; ///< plates seen on either side of the front
};

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The house that a show plays in: velvet that parts, rises or is tied up, spotlights, a golden frame with its
// pelmet, the floor of the stage, and the heads of the audience.
//
//     drawCurtain(house, frame, {.begins = 90, .ends = 300, .way = Drape::rises});
#pragma once

#include "demo/scenes/acts.h"

#include <cstdint>

namespace velm {

inline constexpr std::int32_t stageHeight = 172; ///< rows; those below belong to the audience
inline constexpr std::int32_t stageMiddle = 94;  ///< row halfway between pelmet and floor
inline constexpr std::int32_t curtainFrames = 60;

/// How a curtain opens: to both sides, upwards, or to both sides and tied at its waist.
enum class Drape : std::uint8_t { parts, rises, swags };

/// When it does: it moves in the first and the last `curtainFrames` of the time.
struct Opening {
    std::int32_t begins, ends; ///< frames
    Drape way;
};

struct House {
    Owned<RASTER_delete> folds; ///< the colours of the cloth across one half of the curtain
    Picture hall;               ///< golden frame, pelmet and apron; black where the stage is seen

    House();
};

void drawCurtain(const House& house, std::int32_t frame, const Opening& opening);

/// Boards, darker to the back, that end where the footlights stand.
void drawFloor();

/// Light from a lamp above the picture, at column `fromX`, down to the floor, where it leaves a pool.
void drawBeam(std::int32_t fromX, std::int32_t toX, std::uint32_t colour);

/// What stands before the curtain: frame, pelmet and apron, with a light that runs around and `footlights`
/// (weight) of a flare.
void drawHall(const House& house, std::int32_t frame, std::int32_t footlights);

/// Heads at the lower edge; every other one jumps `jump` pixels high.
void drawAudience(std::int32_t frame, std::int32_t jump);

} // namespace velm

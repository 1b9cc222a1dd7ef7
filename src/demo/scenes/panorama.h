// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The panorama taken apart: the northern lights of its sky, its far and its near houses, each a picture of
// its own that repeats sideways. What a nearer one hides is made up.
//
//     Owned<IMG_delete> near{newNearHouses()};
#pragma once

#include "image/img.h"

#include <cstdint>

namespace velm {

inline constexpr std::int32_t panoramaShore = 92; ///< its row of the waterline

/// Lit outlines and windows before nothing: 0 wherever no near house is. nullptr when memory ran out.
IMG* newNearHouses();

/// The dark houses behind them, as high as they are seen beside the near ones.
IMG* newFarHouses();

/// The lights of the sky without the moon, soft, over so many rows.
IMG* newNorthernLights(std::int32_t height);

} // namespace velm

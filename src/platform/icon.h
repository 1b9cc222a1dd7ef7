// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The program's icon, for the machines that have windows: icon.pam of this folder, as the asset painter
// paints it.
//
//     const std::uint32_t corner = ICON_pixel(0);
#pragma once

#include <cstdint>

namespace velm {

/// Width and height in pixels.
inline constexpr std::int32_t ICON_size = 48;

/// The pixels row by row, each the bytes red, green, blue and alpha.
const char* ICON_bytes();

/// The pixel of an index, row by row: 0xAARRGGBB, not multiplied by its alpha.
std::uint32_t ICON_pixel(std::int32_t index);

} // namespace velm

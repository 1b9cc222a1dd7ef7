// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Glyphs that are pictures rather than letters, drawn pixel by pixel in 16 x 16 cells.
//
//     if (artPixel(artHeart, x, y)) { ... }
#pragma once

#include <cstdint>
#include <string_view>

namespace velm::paint {

/// Pictures 0 to 31 are the glyphs of the control codes; the ones behind them stand elsewhere in the sheet.
constexpr std::int32_t artControlCodes = 32;
constexpr std::int32_t artHouse = 32;
constexpr std::int32_t artNote = 33;
constexpr std::int32_t artTwoNotes = 34;
constexpr std::int32_t artRecord = 35;

/// Whether pixel (x, y) of a picture is lit; 0 <= x, y <= 15.
bool artPixel(std::int32_t art, std::int32_t x, std::int32_t y);

} // namespace velm::paint

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Bold words: what is written thin on a sheet comes to the screen two pixels thick, with sides that recede
// towards the picture's middle.
//
//     LSCROLL_draw(scroll, sheet);
//     printBold(sheet, 4, demo.screen); // and the sheet is black again
#pragma once

#include <cstdint>

namespace velm {

struct IMG;

/// Prints a sheet on a target of its size, over what is there, and clears it. `depth` (0..16) is how many
/// dimmer copies, each a little smaller than the one before, lie behind.
void printBold(IMG* sheet, std::int32_t depth, IMG* target);

} // namespace velm

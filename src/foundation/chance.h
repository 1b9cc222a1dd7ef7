// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The program's own chance, which decides how a run goes: the schedule, the noise of the instruments, where
// the effects start. A library in the same process cannot draw from it, so every run is the same on every
// machine.
//
//     chanceSeed(8810);
//     const std::int32_t hue = chance() % 1536;
//
// The generator is additive: r[i] = r[i - 3] + r[i - 31] modulo 2^32, of which the upper 31 bits are drawn.
// Its 31 first words are a multiplicative sequence, each 16807 times the one before modulo 2^31 - 1 (Lehmer,
// Park and Miller).
#pragma once

#include <cstdint>

namespace velm {

/// Begins the sequence of a seed; 0 is taken as 1, the seed of a program that chooses none.
void chanceSeed(std::uint32_t seed);

/// The next number of the sequence, 0..2^31 - 1.
std::int32_t chance();

} // namespace velm

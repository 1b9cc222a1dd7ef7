// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// RANDOM, a family of cheap deterministic generators over one state of four words, independent of
// chance(). Every draw first adds one to the counter, then mixes it into the state. Unsigned 32-bit,
// wrapping.
//
//     RANDOM* random = RANDOM_new();
//     std::int32_t choice = RANDOM_next(random) & 7;
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct RANDOM {
    std::uint32_t counter = 0x12345678; ///< incremented at the start of every draw
    std::uint32_t multiplier = 33141;   ///< mixing word of RANDOM_next and RANDOM_nextSquare
    std::uint32_t mask = 0xA5A5A5A5;    ///< mixing word of RANDOM_nextSquare
    std::uint32_t state = 1;            ///< the value that a draw returns
};

extern const IDENTITY RANDOM_identity;
extern std::uint8_t RANDOM_verbose;

/// A generator with the defaults above, or nullptr (reported).
RANDOM* RANDOM_new();

/// The main generator: 0..0xFFFFFF.
std::int32_t RANDOM_next(RANDOM* random);
/// 0..0xFFFFFF: the counter summed up.
std::int32_t RANDOM_nextAdd(RANDOM* random);
/// 0..0xFFFFFF: the state doubled plus the counter.
std::int32_t RANDOM_nextDouble(RANDOM* random);
/// Any 32-bit value: counter, squared multiplier and a shifted mask folded in.
std::int32_t RANDOM_nextSquare(RANDOM* random);
/// Any 32-bit value: the counter folded onto the low half.
std::int32_t RANDOM_nextFold(RANDOM* random);
/// Any 32-bit value: the low half spread onto the high half.
std::int32_t RANDOM_nextSpread(RANDOM* random);
/// Any 32-bit value: exclusive or, sum and product with the counter.
std::int32_t RANDOM_nextMix(RANDOM* random);

/// 0..limit-1 of the main generator; always 0 for a limit of 1 or less.
std::int32_t RANDOM_below(RANDOM* random, std::int32_t limit);

/// -4..-1 or 1..4, chosen by the low three bits of a number of any generator.
constexpr std::int32_t RANDOM_eitherWay(std::int32_t number) {
    const std::int32_t choice = number & 7;
    return choice < 4 ? choice + 1 : 3 - choice;
}

/// A new generator with the defaults: the state of `src` is not copied (see docs/quirks.md).
RANDOM* RANDOM_clone(const RANDOM* src);

/// Frees the generator and stores nullptr in the handle.
void RANDOM_delete(RANDOM** handle);

/// Prints "RANDOM error" while RANDOM_verbose is set.
void RANDOM_error();

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// INT, small helpers on 32-bit integers. The module has no record and, alone among the modules, no verbose
// flag.
//
//     const std::int32_t radius = INT_sqrt(x * x + y * y);
//     INT_printBinary(radius);
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

extern const IDENTITY INT_identity;

/// Prints 32 characters '1' or '0', the highest bit first, without a line end.
void INT_printBinary(std::int32_t value);

/// The number of bits of a positive value (1 for 1, 8 for 255), 0 for 0 and for negative ones.
std::int32_t INT_bitLength(std::int32_t value);

/// The square root, rounded down, bit by bit from the top. 0 is reported; from 2^31 on the root is 1: see
/// docs/quirks.md.
std::int32_t INT_sqrt(std::uint32_t value);

/// The absolute value; that of -2^31 does not fit and stays -2^31.
std::int32_t INT_abs(std::int32_t value);

/// Prints "INT: ERROR.", always.
void INT_error();

} // namespace velm

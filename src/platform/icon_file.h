// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The bytes of icon.pam, built into the program.
//
//     const char* header = assets::icon.bytes;
#pragma once

#include "foundation/asset.h"

namespace velm::assets {

extern const ASSET icon; ///< P7 48 x 48, RGB_ALPHA

} // namespace velm::assets

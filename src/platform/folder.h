// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// FOLDER, the folder that the demo stands in: the machine's working folder, or what a machine shows in its
// place.
//
//     DIR* dir = DIR_new();
//     FOLDER_read(dir);
#pragma once

#include "foundation/dir.h"

#include <cstdint>

namespace velm {

/// Appends every name in the folder as DIR_read does: 1, or 0 when there is no folder or no memory.
std::int32_t FOLDER_read(DIR* dir);

} // namespace velm

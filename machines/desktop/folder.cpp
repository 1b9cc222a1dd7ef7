// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/folder.h"

namespace velm {

std::int32_t FOLDER_read(DIR* dir) {
    return DIR_read(dir, ".");
}

} // namespace velm

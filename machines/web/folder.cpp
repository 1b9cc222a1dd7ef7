// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/folder.h"

#include "platform/folder_names.h"

#include <algorithm>

namespace velm {

std::int32_t FOLDER_read(DIR* dir) {
    const bool hasAll = std::all_of(FOLDER_sample.begin(), FOLDER_sample.end(),
                                    [dir](const char* name) { return DIR_append(dir, name); });
    return hasAll ? 1 : 0;
}

} // namespace velm

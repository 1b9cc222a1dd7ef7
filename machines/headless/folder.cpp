// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/folder.h"

#include "headless/headless.h"

namespace velm {

std::int32_t FOLDER_read(DIR* dir) {
    for (const std::string& name : headless.listing) {
        if (!DIR_append(dir, name.c_str())) {
            return 0;
        }
    }
    return 1;
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/folder.h"

#include "platform/folder_names.h"

namespace velm {

std::int32_t FOLDER_read(DIR* dir) {
    return FOLDER_list(dir, FOLDER_sample);
}

} // namespace velm

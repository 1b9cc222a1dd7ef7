// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/folder.h"

#include "headless/headless.h"
#include "platform/folder_names.h"

namespace velm {

std::int32_t FOLDER_read(DIR* dir) {
    return FOLDER_list(dir, headless.listing);
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/folder_names.h"

#include "foundation/list.h"
#include "foundation/memory.h"

namespace velm {

std::int32_t FOLDER_append(DIR* dir, std::string_view name) {
    char* const copy =
        dir != nullptr ? allocateArray<char>(static_cast<std::int64_t>(name.size() + 1)) : nullptr;
    if (copy == nullptr) {
        DIR_error();
        return 0;
    }
    name.copy(copy, name.size());
    const std::int32_t before = dir->names->count;
    LIST_append(dir->names, copy);
    if (dir->names->count == before) {
        delete[] copy;
        DIR_error();
        return 0;
    }
    return 1;
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/folder.h"

#include "foundation/list.h"
#include "foundation/memory.h"
#include "headless/headless.h"

#include <cstring>

namespace velm {

namespace {

/// Appends a copy, which delete[] frees; false without memory.
bool appendCopy(LIST* names, const std::string& name) {
    char* const copy = allocateArray<char>(static_cast<std::int64_t>(name.size() + 1));
    if (copy == nullptr) {
        return false;
    }
    std::memcpy(copy, name.c_str(), name.size() + 1);
    const std::int32_t before = names->count;
    LIST_append(names, copy);
    if (names->count == before) {
        delete[] copy;
        return false;
    }
    return true;
}

} // namespace

std::int32_t FOLDER_read(DIR* dir) {
    for (const std::string& name : headless.listing) {
        if (dir == nullptr || !appendCopy(dir->names, name)) {
            DIR_error();
            return 0;
        }
    }
    return 1;
}

} // namespace velm

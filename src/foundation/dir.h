// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// DIR, the names in a folder.
//
//     DIR* dir = DIR_new();
//     if (DIR_read(dir, ".") != 0) {
//         std::puts(static_cast<const char*>(LIST_get(dir->names, 0)));
//     }
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct LIST;

struct DIR {
    void* handle; ///< the directory stream of the last DIR_read, kept open; nullptr before the first
    LIST* names;  ///< the entries' names in the order of the file system, "." and ".." included
};

extern const IDENTITY DIR_identity;
extern std::uint8_t DIR_verbose;

/// A record without names, or nullptr (reported).
DIR* DIR_new();

/// Appends a copy of a name, which delete[] frees and which outlives the record, as the list does; false
/// (reported) when memory runs out.
bool DIR_append(DIR* dir, const char* name);

/// Appends every name in a folder: 1, or 0 (reported, unchanged) when it cannot be opened or memory runs out.
std::int32_t DIR_read(DIR* dir, const char* path);

/// The empty text.
const char* DIR_getName(const DIR* dir);

/// 1 for any two records (see docs/quirks.md), 0 (reported) when one is missing.
std::int32_t DIR_same(const DIR* a, const DIR* b);

/// 1 for a record, 0 (reported) for nullptr.
std::int32_t DIR_isValid(const DIR* dir);

/// Frees the record and stores nullptr in the handle. The list, its names and the stream stay: see
/// docs/quirks.md.
void DIR_delete(DIR** handle);

/// Prints "DIR error" while DIR_verbose is set.
void DIR_error();

} // namespace velm

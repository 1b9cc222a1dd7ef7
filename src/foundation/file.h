// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// FILE, a record without fields that stands beside DIR for symmetry. The C library's own is std::FILE.
//
//     FILE* file = FILE_new();
//     FILE_delete(&file);
#pragma once

#include "foundation/identity.h"

#include <cstdint>

namespace velm {

struct FILE {};

extern const IDENTITY FILE_identity;
extern std::uint8_t FILE_verbose;

/// A record, or nullptr (reported).
FILE* FILE_new();

/// The empty text.
const char* FILE_getName(const FILE* file);

/// 1 for any two records (see docs/quirks.md), 0 (reported) when one is missing.
std::int32_t FILE_same(const FILE* a, const FILE* b);

/// 1 for a record, 0 (reported) for nullptr.
std::int32_t FILE_isValid(const FILE* file);

/// Frees the record and stores nullptr in the handle.
void FILE_delete(FILE** handle);

/// Prints "FILE error" while FILE_verbose is set.
void FILE_error();

} // namespace velm

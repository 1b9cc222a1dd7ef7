// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A file that is built into the program. CMake's velm_embed makes one constant of each.
//
//     IMG* logo = IMG_fromPNM(assets::logo.bytes, assets::logo.size);
#pragma once

#include <cstddef>

namespace velm {

/// The bytes of a file, never freed, followed by a NUL that does not count.
struct ASSET {
    const char* bytes;
    std::size_t size;
};

} // namespace velm

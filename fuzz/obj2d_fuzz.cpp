// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Feeds the parser of the drawings' text format.
#include "vector/obj2d.h"

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    velm::LIST* objects = velm::OBJ2D_parse(text.c_str());
    velm::OBJ2D_deleteParsed(&objects);
    return 0;
}

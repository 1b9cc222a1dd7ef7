// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Feeds the parser of the drawings' text format.
#include "foundation/list.h"
#include "vector/obj2d.h"

#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    velm::LIST* objects = velm::OBJ2D_parse(text.c_str());
    for (std::int32_t i = 0; i < objects->count; ++i) {
        auto* obj = static_cast<velm::OBJ2D*>(velm::LIST_get(objects, i));
        if (obj != nullptr) {
            delete[] obj->name;
            velm::OBJ2D_deleteSegments(obj);
            velm::OBJ2D_delete(&obj);
        }
    }
    velm::LIST_delete(&objects);
    return 0;
}

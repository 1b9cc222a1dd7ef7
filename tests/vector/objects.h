// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Parsed drawings that clean up after themselves and can be read at a glance.
//
//     EXPECT_EQ(Objects("{ s 1 2 3 4 }\n").shown(), "{1,2,0 3,4,0 }");
#pragma once

#include "foundation/list.h"
#include "vector/obj2d.h"
#include "vector/seg2d.h"
#include "vector/vec2d.h"

#include <sstream>
#include <string>

namespace velm::test {

struct Objects {
    explicit Objects(const char* text) : list(OBJ2D_parse(text)) {}
    ~Objects() { OBJ2D_deleteParsed(&list); }
    Objects(const Objects&) = delete;
    Objects& operator=(const Objects&) = delete;

    OBJ2D* operator[](std::int32_t index) const { return static_cast<OBJ2D*>(LIST_get(list, index)); }

    /// Every object in braces: its name and a colon, then x,y,colour of each point. "-" is a nullptr.
    [[nodiscard]] std::string shown() const {
        std::ostringstream text;
        for (std::int32_t i = 0; i < list->count; ++i) {
            const OBJ2D* obj = (*this)[i];
            text << (obj == nullptr ? "-" : obj->name == nullptr ? "{" : "{" + std::string(obj->name) + ":");
            for (std::int32_t k = 0; obj != nullptr && k < obj->points->count; ++k) {
                const auto* point = static_cast<VEC2D*>(LIST_get(obj->points, k));
                text << std::dec << point->x << ',' << point->y << ',' << std::hex << point->colour << ' ';
            }
            text << (obj == nullptr ? "" : "}");
        }
        return text.str();
    }

    LIST* list;
};

} // namespace velm::test

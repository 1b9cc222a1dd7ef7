// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the pointer has done since the demo asked: of each frame's motions and buttons the demo sees the
// first, so no more is kept.
//
//     events.move(x, y);
//     events.give(*pointer); // in XPTR_poll
#pragma once

#include "platform/xptr.h"

#include <cstdint>
#include <optional>

namespace velm {

class PointerEvents {
public:
    /// It moved to a pixel of the picture.
    void move(std::int32_t x, std::int32_t y);

    /// A button was pressed or let go: 1 to 3, or another, which only takes the turn of what comes after it.
    void press(std::int32_t number, bool isHeld);

    /// Stores the first motion and the first button in the record, and forgets the others.
    void give(XPTR& pointer);

    void forget() { *this = {}; }

private:
    struct Motion {
        std::int32_t x, y;
    };
    struct Button {
        std::int32_t number;
        bool isHeld;
    };
    std::optional<Motion> motion;
    std::optional<Button> button;
};

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/pointer_events.h"

namespace velm {

void PointerEvents::move(std::int32_t x, std::int32_t y) {
    motion = motion.value_or(Motion{x, y});
}

void PointerEvents::press(std::int32_t number, bool isHeld) {
    button = button.value_or(Button{number, isHeld});
}

void PointerEvents::give(XPTR& pointer) {
    // XPTR_firstMotionWins: one expects the latest position; the frame's first motion is taken and XPTR_flush
    // drops the rest, so a fast pointer trails behind.
    if (motion) {
        pointer.x = motion->x;
        pointer.y = motion->y;
    }
    constexpr std::int32_t known = 3;
    if (button && button->number >= 1 && button->number <= known) {
        const std::int32_t bit = 1 << (button->number - 1);
        pointer.buttons = button->isHeld ? pointer.buttons | bit : pointer.buttons & ~bit;
    }
    forget();
}

} // namespace velm

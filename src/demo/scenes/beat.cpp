// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/beat.h"

#include "demo/scenes/curves.h"

#include <cstdint>

namespace velm {

std::int32_t framesOfBar() {
    constexpr std::int32_t secondsOfBar = 3;
    return secondsOfBar * demo.fps->targetRate;
}

std::int32_t framesIntoBar() {
    if (demo.music == nullptr || demo.muted != 0) {
        return 0;
    }
    const std::int32_t bar = demo.music->bar != nullptr ? demo.music->bar->length : 0;
    if (demo.sound == nullptr || demo.sound->blockSamples == 0 || bar == 0) {
        return demo.music->tick % framesOfBar();
    }
    return static_cast<std::int32_t>(std::int64_t{demo.sound->position} * framesOfBar() / bar);
}

std::int32_t beatWeight(std::int32_t frames, std::int32_t parts) {
    if (demo.muted != 0) {
        return 0;
    }
    const std::int32_t since = framesIntoBar() % std::max(framesOfBar() / parts, 1);
    return curveFull - curveRise(since, 0, frames);
}

} // namespace velm

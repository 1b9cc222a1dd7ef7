// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Dots on sines. Thirty curves of a thousand dim dots, each a little behind the one before, are added up:
// where they are dense it glows, and together they look like silk.
#include "effects/sinedots.h"
#include "kit/kit.h"

using namespace velm;

namespace {

constexpr std::int32_t curves = 30;

/// Curve `n`: neighbours differ by a little in phase and hue.
Owned<SINEDOTS_delete> makeCurve(std::int32_t n) {
    return Owned<SINEDOTS_delete>(SINEDOTS_new(), [n](SINEDOTS& made) {
        SINEDOTS_setCount(&made, SINE_tableLength);
        made.colour = RGB888_dim(RGB888_hue(560 + n * 26), 90);
        for (std::int32_t k = 0; k < SINEDOTS_waveCount; ++k) {
            made.phase[k] = {n * (5 - k), 200 * k + n * (2 + k), 0};
            made.step[k] = {1 + k, 2 + k, 0};
            made.speed[k] = {2 - k, 1 + k, 0};
        }
    });
}

} // namespace

int main() {
    Owned<KIT_delete> kit(KIT_new());
    Owned<SINEDOTS_delete> silk[curves];
    for (std::int32_t n = 0; n < curves; ++n) {
        silk[n] = makeCurve(n);
    }
    while (KIT_nextFrame(kit)) {
        for (const Owned<SINEDOTS_delete>& curve : silk) {
            SINEDOTS_advance(curve);
            SINEDOTS_drawAdd(curve, kit->screen);
        }
    }
}

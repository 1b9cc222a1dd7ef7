// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes.h"
#include "demo/scenes/table.h"
#include "demo/velm4030.h"
#include "foundation/chance.h"
#include "foundation/identity.h"

namespace velm {

const IDENTITY VELM4030_identity = makeIdentity("VELM4030", "20150614", "ZENDORAK", "LINUX", "CODE");

void VELM4030_main() {
    VELM4030_start();
    SCENE_runForEver(nullptr);
}

void VELM4030_runSchedule() {
    constexpr std::int32_t oneIn64 = 63;
    constexpr std::int32_t oneIn128 = 127;
    VELM4030_sceneDefault();
    if ((chance() & oneIn64) == 0) {
        VELM4030_sceneInterludeA();
    }
    if ((chance() & oneIn128) == 0) {
        VELM4030_sceneInterludeB();
    }
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes.h"
#include "demo/velm4030.h"

#include <cstdlib>

namespace velm {

const IDENTITY VELM4030_identity = makeIdentity("VELM4030", "20150614", "ZENDORAK", "LINUX", "CODE");

void VELM4030_main() {
    VELM4030_init();
    SCENE_runForEver(nullptr);
}

void VELM4030_runSchedule() {
    constexpr long oneIn64 = 63;
    constexpr long oneIn128 = 127;
    VELM4030_sceneDefault();
    if ((random() & oneIn64) == 0) {
        VELM4030_sceneInterludeA();
    }
    if ((random() & oneIn128) == 0) {
        VELM4030_sceneInterludeB();
    }
}

} // namespace velm

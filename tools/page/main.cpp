// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// velm4030.html's program: the tour, beginning with a scene that is named, or that scene alone.
//
//     main(["extra-9"]), main(["only", "schedule"]), main([])
#include "demo/programme.h"
#include "demo/scenes.h"
#include "demo/velm4030.h"
#include "page/tour.h"
#include "platform/gain.h"
#include "web/web.h"

#include <string_view>

using namespace velm;

int main(int argc, char** argv) {
    const std::string_view last = argc > 1 ? argv[argc - 1] : "";
    const bool isAlone = argc > 2 && argv[1] == std::string_view("only");
    startProgramme(SCENE_find(last), isAlone);
    web.gain = GAIN_usual;
    VELM4030_start();
    PROGRAMME_play(programme);
}

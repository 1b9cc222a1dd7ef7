// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// velm4030-play: the demo as today's desktops want it.
#include "demo/programme.h"
#include "demo/scenes.h"
#include "demo/velm4030.h"
#include "desktop/desktop.h"
#include "play/keys.h"
#include "play/options.h"
#include "play/overlay.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

using namespace velm;

namespace {

PlayOptions options;

/// Opens what a caller has closed: else the connection to the display could become the standard output, and
/// the server would be told what is meant for a terminal.
void haveStandardFiles() {
    int file = 0;
    do {
        file = open("/dev/null", O_RDWR);
    } while (file >= 0 && file <= STDERR_FILENO);
    close(file);
}

/// Leaves instead of showing more frames than were asked for.
void countFrame() {
    static std::uint32_t frames = 0;
    if (options.frames != 0 && frames++ >= options.frames) {
        std::exit(0);
    }
}

/// Says which sound is taken, once for each that is.
void saySound(const std::string& name) {
    static std::string said;
    if (name != said && (name != noSound || said.empty())) {
        const bool missed = name == noSound && !desktop.sound.empty() && desktop.sound != noSound;
        std::printf("sound: %s%s\n", name.c_str(),
                    missed ? (" (no " + desktop.sound + " device)").c_str() : "");
        std::fflush(stdout);
        said = name;
    }
}

} // namespace

int main(int argc, char** argv) {
    haveStandardFiles();
    options = parseOptions(argc, argv);
    std::signal(SIGPIPE, SIG_IGN); // nobody may be listening to what it says
    desktop = options.desktop;
    desktop.onPresent = countFrame;
    desktop.onKey = [](const std::string& key) { return actOnKey(options.programme, key); };
    desktop.onDraw = OVERLAY_over;
    desktop.onRest = OVERLAY_refresh;
    desktop.onSound = saySound;
    VELM4030_start();
    VELM4030_setFrameRate(options.rate);
    PROGRAMME_play(options.programme);
}

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// velm4030-play: the demo as today's desktops want it.
#include "demo/velm4030.h"
#include "desktop/desktop.h"
#include "play/options.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace {

/// Opens what a caller has closed: else the connection to the display could become the standard output, and
/// the server would be told what is meant for a terminal.
void haveStandardFiles() {
    int file = 0;
    do {
        file = open("/dev/null", O_RDWR);
    } while (file >= 0 && file <= STDERR_FILENO);
    close(file);
}

} // namespace

int main(int argc, char** argv) {
    using namespace velm;
    haveStandardFiles();
    static PlayOptions options = parseOptions(argc, argv);
    std::signal(SIGPIPE, SIG_IGN); // nobody may be listening to what it says
    desktop.scale = options.scale;
    desktop.fullScreen = options.fullScreen;
    desktop.sound = options.sound;
    desktop.volume = options.volume;
    desktop.frameLimit = options.frames;
    desktop.onLimit = [] { std::exit(0); };
    VELM4030_start();
    VELM4030_setFrameRate(options.rate);
    PROGRAMME_play(options.programme);
}

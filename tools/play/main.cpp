// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// velm4030-play: the demo as today's desktops want it.
#include "demo/velm4030.h"
#include "desktop/desktop.h"
#include "play/caption.h"
#include "play/keys.h"
#include "play/options.h"
#include "play/snapshot.h"

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
    desktop = options.desktop;
    desktop.help = keysText;
    desktop.onLimit = [] { std::exit(0); };
    desktop.onPrevious = [] { PROGRAMME_previous(options.programme); };
    desktop.onNext = [] { PROGRAMME_next(options.programme); };
    desktop.onPicture = keepSnapshot;
    desktop.onText = drawCaption;
    VELM4030_start();
    VELM4030_setFrameRate(options.rate);
    PROGRAMME_play(options.programme);
}

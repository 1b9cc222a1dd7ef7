// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "desktop/video.h"

#include "desktop/desktop.h"
#include "desktop/x11.h"
#include "platform/program.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velm {

namespace {

bool isSet(const char* variable) {
    const char* const value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

/// What the user asks of SDL goes before `driver`.
bool start(const char* driver) {
    SDL_SetHint(SDL_HINT_VIDEODRIVER, driver);
    return SDL_InitSubSystem(SDL_INIT_VIDEO) == 0;
}

/// True when SDL survives this compositor: of one without a seat, SDL 2.26 dies. So another process goes
/// first.
bool survivesWayland() {
    constexpr unsigned int patienceSeconds = 5;
    const pid_t scout = fork();
    if (scout == 0) {
        const rlimit none{0, 0};
        setrlimit(RLIMIT_CORE, &none);
        alarm(patienceSeconds);
        const int nothing = open("/dev/null", O_RDWR);
        dup2(nothing, STDOUT_FILENO);
        dup2(nothing, STDERR_FILENO);
        _exit(start("wayland") ? 0 : 1);
    }
    int status = 1;
    waitpid(scout, &status, 0);
    return scout > 0 && status == 0;
}

} // namespace

void openVideo() {
    if (SDL_WasInit(SDL_INIT_VIDEO) != 0) {
        return;
    }
    SDL_setenv("SDL_VIDEO_X11_WMCLASS", programNames.title, 0);
    SDL_setenv("SDL_VIDEO_WAYLAND_WMCLASS", programNameOr(desktopEntry), 0);
    const bool isForeign = desktop.foreign != 0 || desktop.root;
    if (isForeign) { // a screen saver must not hold itself off, and ends when it is told to
        SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
        SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    }
    const bool hasWayland = isSet("WAYLAND_DISPLAY") && !isForeign;
    const bool hasX11 = isSet("DISPLAY") || isForeign;
    const bool started = (hasWayland && survivesWayland() && start("wayland")) || (hasX11 && start("x11")) ||
                         (!hasWayland && !hasX11 && start("KMSDRM"));
    if (!started) {
        giveUp("cannot open display", displayName());
    }
    if (isX11()) {
        watchX11();
    }
}

bool isX11() {
    return std::strcmp(SDL_GetCurrentVideoDriver(), "x11") == 0;
}

void giveUp(const char* what, const char* detail) {
    std::fprintf(stderr, "%s: %s \"%s\"\n", programNameOr(desktopProgram), what, detail);
    std::exit(1);
}

const char* displayName() {
    const char* const name = std::getenv("DISPLAY");
    return name == nullptr ? "" : name;
}

} // namespace velm

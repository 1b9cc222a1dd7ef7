// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "x11/properties.h"

#include "platform/icon.h"
#include "platform/program.h"
#include "x11/display.h"

#include <X11/Xatom.h>
#include <X11/Xutil.h>
#include <array>
#include <string>
#include <unistd.h>

namespace velm {

namespace {

/// Sets a property of 32-bit words, which Xlib takes as longs.
void setWords(const char* property, ::Atom type, const unsigned long* words, std::size_t count) {
    XChangeProperty(x11Display.connection, x11Display.window,
                    XInternAtom(x11Display.connection, property, False), type, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(words), static_cast<int>(count));
}

void describeProcess() {
    // The id of a process says something together with the machine that it runs on.
    std::array<char, 256> host{};
    if (gethostname(host.data(), host.size() - 1) != 0) {
        return;
    }
    char* name = host.data();
    XTextProperty machine{};
    if (XStringListToTextProperty(&name, 1, &machine) != 0) {
        XSetWMClientMachine(x11Display.connection, x11Display.window, &machine);
        XFree(machine.value);
    }
    const auto process = static_cast<unsigned long>(getpid());
    setWords("_NET_WM_PID", XA_CARDINAL, &process, 1);
}

/// Width, height, and the pixels as 0xAARRGGBB.
void describeIcon() {
    std::array<unsigned long, 2 + ICON_size * ICON_size> words{ICON_size, ICON_size};
    for (std::int32_t i = 0; i < ICON_size * ICON_size; ++i) {
        words[2 + static_cast<std::size_t>(i)] = ICON_pixel(i);
    }
    setWords("_NET_WM_ICON", XA_CARDINAL, words.data(), words.size());
}

} // namespace

void x11Describe() {
    std::string name = programNameOr("velm4030");
    std::string kind = programNames.title;
    XClassHint hint{name.data(), kind.data()};
    XSetClassHint(x11Display.connection, x11Display.window, &hint);
    describeProcess();
    describeIcon();
}

} // namespace velm

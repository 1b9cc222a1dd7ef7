// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "full_screen.h"

#include "x11/display.h"

#include <X11/Xatom.h>
#include <algorithm>
#include <cstdlib>
#include <vector>

namespace velm {

namespace {

/// Who had the keyboard before us.
Window formerFocus = None;
int formerRevert = RevertToPointerRoot;

Atom atom(const char* name) {
    return XInternAtom(x11Display.connection, name, False);
}

/// The words of a property, none when it is missing or of another type. The window may be gone already.
std::vector<unsigned long> property(Window window, const char* name, Atom type) {
    constexpr long mostWords = 1024;
    Atom actualType = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* data = nullptr;
    const X11ErrorTrap trap;
    const bool read = XGetWindowProperty(x11Display.connection, window, atom(name), 0, mostWords, False, type,
                                         &actualType, &format, &count, &left, &data) == Success;
    std::vector<unsigned long> words;
    constexpr int wordFormat = 32;
    if (read && actualType == type && format == wordFormat) {
        const auto* const first = reinterpret_cast<const unsigned long*>(data);
        words.assign(first, first + count);
    }
    if (data != nullptr) {
        XFree(data);
    }
    return words;
}

/// The program ends by exit() wherever it is; without a connection there is nothing to give back.
void giveKeyboardBack() {
    if (x11Display.connection == nullptr) {
        return;
    }
    const X11ErrorTrap trap; // the other window may be gone
    XSetInputFocus(x11Display.connection, formerFocus, formerRevert, CurrentTime);
}

} // namespace

bool managerCanFillScreen() {
    constexpr const char* check = "_NET_SUPPORTING_WM_CHECK";
    // A manager that died leaves its properties on the root; only a living one has the window that they name.
    const auto window = property(x11Display.root, check, XA_WINDOW);
    if (window.size() != 1 || property(window[0], check, XA_WINDOW) != window) {
        return false;
    }
    const auto known = property(x11Display.root, "_NET_SUPPORTED", XA_ATOM);
    return std::find(known.begin(), known.end(), atom("_NET_WM_STATE_FULLSCREEN")) != known.end();
}

void askManagerToFillScreen() {
    const Atom state = atom("_NET_WM_STATE_FULLSCREEN");
    constexpr int wordFormat = 32;
    XChangeProperty(x11Display.connection, x11Display.window, atom("_NET_WM_STATE"), XA_ATOM, wordFormat,
                    PropModeReplace, reinterpret_cast<const unsigned char*>(&state), 1);
}

void takeKeyboard() {
    XGetInputFocus(x11Display.connection, &formerFocus, &formerRevert);
    XSetInputFocus(x11Display.connection, x11Display.window, RevertToPointerRoot, CurrentTime);
    std::atexit(giveKeyboardBack);
}

} // namespace velm

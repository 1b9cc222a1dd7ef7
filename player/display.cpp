// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The window: any size, the picture centred in it as large as whole pixels allow, black around.
#include "canvas.h"
#include "foundation/memory.h"
#include "full_screen.h"
#include "layout.h"
#include "platform/xkbd.h"
#include "player.h"

#include <X11/Xutil.h>
#include <unistd.h>

namespace velm {

Player player;

namespace {

constexpr std::int32_t pictureSize = 256;

/// What stands in the window.
struct Showing {
    Canvas canvas;
    Layout layout{1, 0, 0};
    IMG* frame = nullptr; ///< the last one, for a window that is uncovered during a pause
    std::uint32_t frames = 0;
};
Showing showing;

/// Makes the window; one that no manager shall touch fills the screen.
Window makeWindow(bool unmanaged) {
    const int screenWidth = DisplayWidth(x11Display.connection, x11Display.screen);
    const int screenHeight = DisplayHeight(x11Display.connection, x11Display.screen);
    const std::int32_t scale =
        player.scale > 0 ? player.scale : scaleForScreen(pictureSize, pictureSize, screenWidth, screenHeight);
    const std::int32_t size = pictureSize * scale;
    XSetWindowAttributes attributes{};
    attributes.background_pixel = BlackPixel(x11Display.connection, x11Display.screen);
    attributes.override_redirect = unmanaged ? True : False;
    return XCreateWindow(x11Display.connection, x11Display.root, unmanaged ? 0 : (screenWidth - size) / 2,
                         unmanaged ? 0 : (screenHeight - size) / 2,
                         static_cast<unsigned int>(unmanaged ? screenWidth : size),
                         static_cast<unsigned int>(unmanaged ? screenHeight : size), 0, CopyFromParent,
                         InputOutput, CopyFromParent, CWBackPixel | CWOverrideRedirect, &attributes);
}

/// Tells a window manager what the window is.
void describeWindow() {
    XStoreName(x11Display.connection, x11Display.window, "VELM4030");
    XSizeHints size{};
    size.flags = PMinSize;
    size.min_width = pictureSize;
    size.min_height = pictureSize;
    XSetWMNormalHints(x11Display.connection, x11Display.window, &size);
    XWMHints input{};
    input.flags = InputHint;
    input.input = True;
    XSetWMHints(x11Display.connection, x11Display.window, &input);
    char name[] = "velm4030-play";
    char kind[] = "VELM4030";
    XClassHint names{name, kind};
    XSetClassHint(x11Display.connection, x11Display.window, &names);
    x11ReceiveClose();
}

/// Paints what lies around the picture anew: it may still show a part of the picture's former place.
void clearAround(const Layout& layout, const IMG& frame, const XWindowAttributes& window) {
    const int right = layout.left + frame.width * layout.scale;
    const int bottom = layout.top + frame.height * layout.scale;
    const struct {
        int x, y, width, height;
    } strips[] = {{0, 0, window.width, layout.top},
                  {0, bottom, window.width, window.height - bottom},
                  {0, layout.top, layout.left, bottom - layout.top},
                  {right, layout.top, window.width - right, bottom - layout.top}};
    for (const auto& strip : strips) {
        if (strip.width > 0 && strip.height > 0) { // to the server, 0 means all the rest
            XClearArea(x11Display.connection, x11Display.window, strip.x, strip.y,
                       static_cast<unsigned int>(strip.width), static_cast<unsigned int>(strip.height),
                       False);
        }
    }
}

/// Draws the last frame as the window stands now.
void draw() {
    XWindowAttributes window{};
    // The server answers in order: with this answer it has read the canvas to its end.
    if (!x11IsViewable(window)) {
        return;
    }
    const IMG& frame = *showing.frame;
    const Layout layout = layoutFor(frame.width, frame.height, window.width, window.height);
    if (layout != showing.layout) {
        clearAround(layout, frame, window);
        showing.layout = layout;
    }
    if (!showing.canvas.draw(frame, layout.scale)) {
        XDPY_error();
        return;
    }
    showing.canvas.send(layout.left, layout.top);
}

/// Keeps a frame; false when memory runs out.
bool keep(const IMG& img) {
    if (showing.frame == nullptr) {
        showing.frame = IMG_newSized(img.width, img.height);
    }
    if (showing.frame == nullptr) {
        return false;
    }
    if (showing.frame->width != img.width || showing.frame->height != img.height) {
        IMG_setSize(showing.frame, img.width, img.height);
    }
    IMG_copy(&img, showing.frame);
    return true;
}

/// Takes the events that nobody else does: true when a part of the window was uncovered.
bool takeExposures() {
    bool exposed = false;
    XEvent event;
    while (XCheckWindowEvent(x11Display.connection, x11Display.window, ExposureMask | KeyReleaseMask,
                             &event) != 0) {
        exposed = exposed || event.type == Expose;
    }
    return exposed;
}

} // namespace

XDPY* XDPY_open() {
    x11Connect(playerName);
    XDPY* const display = allocateRecord<XDPY>();
    XDPY_current = display;
    if (display == nullptr) {
        XDPY_error();
        return nullptr;
    }
    const bool managed = player.fullScreen && managerCanFillScreen();
    const bool unmanaged = player.fullScreen && !managed;
    x11Display.window = makeWindow(unmanaged);
    *display = {pictureSize, pictureSize,
                static_cast<std::uint32_t>(DefaultDepth(x11Display.connection, x11Display.screen))};
    describeWindow();
    if (managed) {
        askManagerToFillScreen();
    }
    XDPY_selectInput();
    XDPY_dump.on = 0;
    XMapRaised(x11Display.connection, x11Display.window);
    x11WaitForWindowManager();
    if (unmanaged) {
        takeKeyboard();
    }
    return display;
}

void XDPY_selectInput() {
    if (XDPY_isOpen()) {
        XSelectInput(x11Display.connection, x11Display.window, x11InputEvents | ExposureMask);
    }
}

void XDPY_resize(XDPY* display, std::int32_t width, std::int32_t height) {
    if (display == nullptr || width <= 0 || height <= 0 || !XDPY_isOpen()) {
        XDPY_error();
        return;
    }
    display->width = static_cast<std::uint32_t>(width);
    display->height = static_cast<std::uint32_t>(height);
    const auto scale = static_cast<std::uint32_t>(showing.layout.scale);
    XResizeWindow(x11Display.connection, x11Display.window, display->width * scale, display->height * scale);
    XFlush(x11Display.connection);
}

void XDPY_present(XDPY* display, const IMG* img) {
    if (!XDPY_accepts(display, img)) {
        XDPY_error();
        return;
    }
    if (player.frameLimit != 0 && showing.frames >= player.frameLimit && player.onLimit) {
        player.onLimit();
    }
    ++showing.frames;
    XDPY_dumpFrame(img);
    if (!keep(*img)) {
        XDPY_error();
        return;
    }
    draw();
}

void x11ToPicture(std::int32_t& x, std::int32_t& y) {
    showing.layout.toPicture(x, y);
}

void XKBD_rest(XKBD*) {
    usleep(XKBD_longestRest);
    XWindowAttributes window{};
    if (takeExposures() && showing.frame != nullptr) {
        draw();
    } else {
        x11IsViewable(window); // notices a window that is gone
    }
}

} // namespace velm

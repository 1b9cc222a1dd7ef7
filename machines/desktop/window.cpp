// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The window: any size, the picture centred in it as large as whole pixels allow, black around.
#include "desktop/window.h"

#include "desktop/desktop.h"
#include "desktop/video.h"
#include "desktop/x11.h"
#include "foundation/report.h"
#include "platform/icon.h"
#include "platform/program.h"
#include "platform/xdpy.h"

#include <algorithm>
#include <cstdio>

namespace velm {

Desktop desktop;
PlayerWindow playerWindow;

namespace {

constexpr std::int32_t pictureSize = 256;

/// The monitor on which a window begins: where the pointer is.
int monitorNow() {
    SDL_Point pointer{};
    SDL_GetGlobalMouseState(&pointer.x, &pointer.y);
    return std::max(SDL_GetPointDisplayIndex(&pointer), 0);
}

SDL_Window* makeWindow() {
    const int monitor = monitorNow();
    SDL_Rect room{};
    SDL_GetDisplayUsableBounds(monitor, &room);
    const std::int32_t scale =
        desktop.scale > 0 ? desktop.scale : scaleForScreen(pictureSize, pictureSize, room.w, room.h);
    const auto place = static_cast<int>(SDL_WINDOWPOS_CENTERED_DISPLAY(static_cast<unsigned int>(monitor)));
    return SDL_CreateWindow(programNames.title, place, place, pictureSize * scale, pictureSize * scale,
                            SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI);
}

/// Without a manager nobody fills the screen for SDL, so the window is made as large.
void fillWithoutManager(SDL_Window* window, bool full) {
    static SDL_Rect former{};
    SDL_Rect place = former;
    if (full) {
        SDL_GetWindowPosition(window, &former.x, &former.y);
        SDL_GetWindowSize(window, &former.w, &former.h);
        SDL_GetDisplayBounds(SDL_GetWindowDisplayIndex(window), &place);
    }
    SDL_SetWindowSize(window, place.w, place.h);
    SDL_SetWindowPosition(window, place.x, place.y);
}

/// Gives the window what a desktop shows of it: its icon, its least size, its full screen.
void dressWindow(SDL_Window* window) {
    SDL_SetWindowMinimumSize(window, pictureSize, pictureSize);
    constexpr int bits = 32;
    SDL_Surface* const icon =
        SDL_CreateRGBSurfaceWithFormatFrom(const_cast<char*>(ICON_bytes()), ICON_size, ICON_size, bits,
                                           bits / 8 * ICON_size, SDL_PIXELFORMAT_RGBA32);
    SDL_SetWindowIcon(window, icon);
    SDL_FreeSurface(icon);
}

void openOwn() {
    if (isX11() && !hasManager()) {
        lendKeyboard();
    }
    playerWindow.window = makeWindow();
    if (playerWindow.window == nullptr) {
        giveUp("cannot open a window", SDL_GetError());
    }
    dressWindow(playerWindow.window);
}

void openForeign() {
    const std::uint64_t number = desktop.foreign != 0 ? desktop.foreign : rootWindow();
    playerWindow.isForeign = true;
    playerWindow.window = foreignWindow(number);
    if (playerWindow.window == nullptr) {
        char text[24];
        std::snprintf(text, sizeof text, "0x%llx", static_cast<unsigned long long>(number));
        giveUp("no such window", text);
    }
}

/// A minimised window is not drawn.
bool isHidden(SDL_Window* window) {
    return (SDL_GetWindowFlags(window) & (SDL_WINDOW_MINIMIZED | SDL_WINDOW_HIDDEN)) != 0;
}

SDL_Point sizeInPixels(SDL_Window* window) {
    SDL_Point size{};
    SDL_GetWindowSizeInPixels(window, &size.x, &size.y);
    return size;
}

} // namespace

const IMG* desktopFrame() {
    return playerWindow.frame;
}

void desktopRedraw() {
    if (!XDPY_isOpen() || playerWindow.frame == nullptr || isHidden(playerWindow.window)) {
        return;
    }
    if (!playerWindow.canvas.draw(desktop.onDraw(*playerWindow.frame), playerWindow.layout())) {
        XDPY_error();
    }
}

void desktopToggleFullScreen() {
    playerWindow.isFull = !playerWindow.isFull;
    if (isX11() && !hasManager()) {
        fillWithoutManager(playerWindow.window, playerWindow.isFull);
    } else {
        SDL_SetWindowFullscreen(playerWindow.window, playerWindow.isFull ? SDL_WINDOW_FULLSCREEN_DESKTOP : 0);
    }
}

Layout PlayerWindow::layout() const {
    const SDL_Point size = sizeInPixels(window);
    const std::int32_t width = frame != nullptr ? frame->width : pictureSize;
    const std::int32_t height = frame != nullptr ? frame->height : pictureSize;
    return layoutFor(width, height, size.x, size.y);
}

SDL_Point PlayerWindow::inPicture(SDL_Point place) const {
    SDL_Point own{};
    SDL_GetWindowSize(window, &own.x, &own.y);
    const SDL_Point size = sizeInPixels(window); // larger than its own where a desktop magnifies
    SDL_Point picture{place.x * size.x / std::max(own.x, 1), place.y * size.y / std::max(own.y, 1)};
    layout().toPicture(picture.x, picture.y);
    return picture;
}

XDPY* XDPY_open() {
    openVideo();
    desktop.foreign != 0 || desktop.root ? openForeign() : openOwn();
    const std::uint32_t format = SDL_GetWindowPixelFormat(playerWindow.window);
    if (!playerWindow.canvas.open(playerWindow.window)) {
        format == SDL_PIXELFORMAT_UNKNOWN ? giveUp("needs a TrueColor display, unlike", displayName())
                                          : giveUp("cannot draw", SDL_GetError());
    }
    XDPY* const display = XDPY_make(SDL_BITSPERPIXEL(format));
    if (desktop.fullScreen && !playerWindow.isForeign && !playerWindow.isFull) {
        desktopToggleFullScreen();
    }
    playerWindow.takeEvents();
    return display;
}

bool XDPY_isOpen() {
    return playerWindow.window != nullptr;
}

void XDPY_selectInput() {}

void XDPY_resize(XDPY* display, std::int32_t width, std::int32_t height) {
    if (refused(display == nullptr || width <= 0 || height <= 0 || !XDPY_isOpen(), XDPY_error)) {
        return;
    }
    const std::int32_t scale = playerWindow.layout().scale;
    display->width = static_cast<std::uint32_t>(width);
    display->height = static_cast<std::uint32_t>(height);
    SDL_SetWindowSize(playerWindow.window, width * scale, height * scale);
}

void XDPY_present(XDPY* display, const IMG* img) {
    if (refused(!XDPY_accepts(display, img), XDPY_error)) {
        return;
    }
    desktop.onPresent();
    XDPY_dumpFrame(img);
    IMG* const frame = playerWindow.frame;
    if (frame != nullptr && frame->width == img->width && frame->height == img->height) {
        IMG_copy(img, frame);
    } else {
        playerWindow.frame = Owned<IMG_delete>(IMG_clone(img));
    }
    desktopRedraw();
}

void XDPY_close(XDPY** handle) {
    if (XDPY_drop(handle)) {
        playerWindow.canvas.close();
        SDL_DestroyWindow(playerWindow.window);
        playerWindow.window = nullptr;
    }
}

} // namespace velm

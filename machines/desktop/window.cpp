// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The window: any size, the picture centred in it as large as whole pixels allow, black around.
#include "desktop/window.h"

#include "desktop/desktop.h"
#include "desktop/events.h"
#include "desktop/video.h"
#include "desktop/x11.h"
#include "foundation/memory.h"
#include "platform/clock.h"
#include "platform/icon.h"
#include "platform/xdpy.h"

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
    return SDL_CreateWindow("VELM4030", place, place, pictureSize * scale, pictureSize * scale,
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
        SDL_CreateRGBSurfaceWithFormat(0, ICON_size, ICON_size, bits, SDL_PIXELFORMAT_ARGB8888);
    if (icon != nullptr) {
        for (std::int32_t i = 0; i < ICON_size * ICON_size; ++i) {
            static_cast<std::uint32_t*>(icon->pixels)[i] = ICON_pixel(i);
        }
        SDL_SetWindowIcon(window, icon);
        SDL_FreeSurface(icon);
    }
}

void openOwn() {
    if (isX11() && !hasManager()) {
        lendKeyboard();
    }
    playerWindow.window = makeWindow();
    if (playerWindow.window != nullptr) {
        dressWindow(playerWindow.window);
    }
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

/// Makes `copy` as `img` is; false when memory runs out.
bool copyTo(const IMG& img, IMG*& copy) {
    if (copy == nullptr) {
        copy = IMG_newSized(img.width, img.height);
    }
    if (copy == nullptr) {
        return false;
    }
    if (copy->width != img.width || copy->height != img.height) {
        IMG_setSize(copy, img.width, img.height);
    }
    IMG_copy(&img, copy);
    return true;
}

/// What is to stand over the picture now.
std::string textNow() {
    const bool speaks = CLOCK_now() < playerWindow.textUntil;
    return playerWindow.showsHelp ? desktop.help : speaks ? playerWindow.text : "";
}

} // namespace

void PlayerWindow::redraw() {
    if (window == nullptr || isHidden || frame == nullptr) {
        return;
    }
    static IMG* labelled = nullptr;
    const IMG* shown = frame;
    if (const std::string label = textNow(); !label.empty() && desktop.onText && copyTo(*frame, labelled)) {
        desktop.onText(*labelled, label);
        shown = labelled;
    }
    if (!canvas.draw(*shown, layout())) {
        XDPY_error();
    }
}

void PlayerWindow::say(const std::string& line) {
    constexpr std::int64_t micros = 1500000;
    text = line;
    textUntil = CLOCK_now() + micros;
    redraw();
}

void PlayerWindow::toggleHelp() {
    showsHelp = !showsHelp;
    redraw();
}

void PlayerWindow::toggleFullScreen() {
    isFull = !isFull;
    if (isX11() && !hasManager()) {
        fillWithoutManager(window, isFull);
    } else {
        SDL_SetWindowFullscreen(window, isFull ? SDL_WINDOW_FULLSCREEN_DESKTOP : 0);
    }
}

Layout PlayerWindow::layout() const {
    const SDL_Point size = canvas.size();
    const std::int32_t width = frame != nullptr ? frame->width : pictureSize;
    const std::int32_t height = frame != nullptr ? frame->height : pictureSize;
    return layoutFor(width, height, size.x, size.y);
}

SDL_Point PlayerWindow::inPicture(SDL_Point place) const {
    SDL_Point own{};
    SDL_GetWindowSize(window, &own.x, &own.y);
    const SDL_Point size = canvas.size(); // larger than its own where a desktop magnifies
    SDL_Point picture{place.x * size.x / std::max(own.x, 1), place.y * size.y / std::max(own.y, 1)};
    layout().toPicture(picture.x, picture.y);
    return picture;
}

XDPY* XDPY_open() {
    openVideo();
    XDPY* const display = allocateRecord<XDPY>();
    XDPY_current = display;
    if (display == nullptr) {
        XDPY_error();
        return nullptr;
    }
    desktop.foreign != 0 || desktop.root ? openForeign() : openOwn();
    if (playerWindow.window == nullptr) {
        giveUp("cannot open a window", SDL_GetError());
    }
    const std::uint32_t format = SDL_GetWindowPixelFormat(playerWindow.window);
    if (!playerWindow.canvas.open(playerWindow.window)) {
        format == SDL_PIXELFORMAT_UNKNOWN ? giveUp("needs a TrueColor display, unlike", displayName())
                                          : giveUp("cannot draw", SDL_GetError());
    }
    *display = {pictureSize, pictureSize, SDL_BITSPERPIXEL(format)};
    if (desktop.fullScreen && !playerWindow.isForeign && !playerWindow.isFull) {
        playerWindow.toggleFullScreen();
    }
    XDPY_dump.on = 0;
    takeEvents();
    return display;
}

bool XDPY_isOpen() {
    return playerWindow.window != nullptr;
}

void XDPY_selectInput() {}

void XDPY_resize(XDPY* display, std::int32_t width, std::int32_t height) {
    if (display == nullptr || width <= 0 || height <= 0 || !XDPY_isOpen()) {
        XDPY_error();
        return;
    }
    const std::int32_t scale = playerWindow.layout().scale;
    display->width = static_cast<std::uint32_t>(width);
    display->height = static_cast<std::uint32_t>(height);
    SDL_SetWindowSize(playerWindow.window, width * scale, height * scale);
}

void XDPY_present(XDPY* display, const IMG* img) {
    if (!XDPY_accepts(display, img)) {
        XDPY_error();
        return;
    }
    if (desktop.frameLimit != 0 && playerWindow.frames >= desktop.frameLimit && desktop.onLimit) {
        desktop.onLimit();
    }
    ++playerWindow.frames;
    XDPY_dumpFrame(img);
    if (copyTo(*img, playerWindow.frame)) {
        playerWindow.redraw();
    } else {
        XDPY_error();
    }
}

void XDPY_close(XDPY** handle) {
    if (handle == nullptr || *handle == nullptr || *handle != XDPY_current) {
        XDPY_error();
        return;
    }
    playerWindow.canvas.close();
    SDL_DestroyWindow(playerWindow.window);
    playerWindow.window = nullptr;
    XDPY_current = nullptr;
    delete *handle;
    *handle = nullptr;
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "desktop/x11.h"

#include "desktop/video.h"

#include <SDL_syswm.h>
#include <bit>
#include <cstdlib>
#include <dlfcn.h>

namespace velm {

namespace {

/// A function of the library that SDL has loaded, of the type of the variable that it is stored in.
struct Loaded {
    const char* name;
    template <typename Function>
    operator Function*() const {
        [[maybe_unused]] static void* const library = dlopen("libX11.so.6", RTLD_LAZY | RTLD_GLOBAL);
        return reinterpret_cast<Function*>(dlsym(RTLD_DEFAULT, name));
    }
};

struct Xlib {
    decltype(&XOpenDisplay) openDisplay = Loaded{"XOpenDisplay"};
    decltype(&XDefaultRootWindow) root = Loaded{"XDefaultRootWindow"};
    decltype(&XSetErrorHandler) onError = Loaded{"XSetErrorHandler"};
    decltype(&XSetIOErrorHandler) onLost = Loaded{"XSetIOErrorHandler"};
    decltype(&XGetWindowAttributes) attributes = Loaded{"XGetWindowAttributes"};
    decltype(&XSelectInput) select = Loaded{"XSelectInput"};
    decltype(&XQueryTree) tree = Loaded{"XQueryTree"};
    decltype(&XInternAtom) atom = Loaded{"XInternAtom"};
    decltype(&XGetWindowProperty) property = Loaded{"XGetWindowProperty"};
    decltype(&XCreateImage) image = Loaded{"XCreateImage"};
    decltype(&XPutImage) put = Loaded{"XPutImage"};
    decltype(&XSync) sync = Loaded{"XSync"};
    decltype(&XFree) free = Loaded{"XFree"};
    decltype(&XGetInputFocus) getFocus = Loaded{"XGetInputFocus"};
    decltype(&XSetInputFocus) setFocus = Loaded{"XSetInputFocus"};
};

const Xlib& xlib() {
    static const Xlib library;
    return library;
}

bool isLost = false;

int onProtocolError(Display*, XErrorEvent*) {
    return 0; // a window that is gone tells so by an event
}

int onConnectionLost(Display*) {
    isLost = true;
    giveUp("lost the display", displayName());
}

/// SDL's own connection, and what it calls the window.
SDL_SysWMinfo infoOf(SDL_Window* window) {
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    SDL_GetWindowWMInfo(window, &info);
    return info;
}

/// A connection of our own, for what is asked before there is a window of SDL's.
Display* connection() {
    static Display* const own = xlib().openDisplay(nullptr);
    if (own == nullptr) {
        giveUp("lost the display", displayName());
    }
    return own;
}

XWindowAttributes attributesOf(Display* display, Window window) {
    XWindowAttributes attributes{};
    xlib().attributes(display, window, &attributes); // all 0 of a window that is gone
    return attributes;
}

/// The window that stands in for the root, as this one's property says; 0 for none.
Window standInOf(Window window) {
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* data = nullptr;
    const Atom name = xlib().atom(connection(), "__SWM_VROOT", False);
    xlib().property(connection(), window, name, 0, 1, False, AnyPropertyType, &type, &format, &count, &left,
                    &data);
    constexpr int wordFormat = 32;
    const Window found = count == 1 && format == wordFormat ? *reinterpret_cast<const Window*>(data) : 0;
    if (data != nullptr) {
        xlib().free(data);
    }
    return found;
}

Window formerFocus = 0;
int formerRevert = 0;

/// The program ends by exit() wherever it is.
void giveKeyboardBack() {
    if (!isLost) {
        xlib().setFocus(connection(), formerFocus, formerRevert, CurrentTime);
        xlib().sync(connection(), False);
    }
}

} // namespace

void watchX11() {
    xlib().onError(onProtocolError);
    xlib().onLost(onConnectionLost);
    SDL_EventState(SDL_SYSWMEVENT, SDL_ENABLE);
}

SDL_Window* foreignWindow(std::uint64_t number) {
    if (attributesOf(connection(), number).root == 0) {
        return nullptr;
    }
    SDL_Window* const window = SDL_CreateWindowFrom(reinterpret_cast<void*>(number));
    if (window != nullptr) {
        // SDL asks for no event of such a window. Its size, its exposures and its end may be heard by
        // anybody.
        xlib().select(infoOf(window).info.x11.display, number, StructureNotifyMask | ExposureMask);
    }
    return window;
}

std::uint64_t rootWindow() {
    Window found = xlib().root(connection());
    Window* children = nullptr;
    unsigned int count = 0;
    Window root = 0;
    Window parent = 0;
    xlib().tree(connection(), found, &root, &parent, &children, &count);
    for (unsigned int i = 0; i < count; ++i) {
        const Window standIn = standInOf(children[i]);
        found = standIn != 0 ? standIn : found;
    }
    if (children != nullptr) {
        xlib().free(children);
    }
    return found;
}

std::optional<PixelLayout> pixelsOf(SDL_Window* window) {
    const auto x11 = infoOf(window).info.x11;
    const XWindowAttributes attributes = attributesOf(x11.display, x11.window);
    const auto mask = [](unsigned long channel) { return static_cast<std::uint32_t>(channel); };
    constexpr int leastBits = 25; // those below SDL knows, if they have masks at all
    if (attributes.depth < leastBits) {
        return std::nullopt;
    }
    const Visual& visual = *attributes.visual;
    return PixelLayout(4, mask(visual.red_mask), mask(visual.green_mask), mask(visual.blue_mask));
}

bool putRows(SDL_Window* window, char* rows, SDL_Point size) {
    const auto x11 = infoOf(window).info.x11;
    constexpr int bits = 32;
    const XWindowAttributes attributes = attributesOf(x11.display, x11.window);
    const auto width = static_cast<unsigned int>(size.x);
    const auto height = static_cast<unsigned int>(size.y);
    XImage* const image =
        xlib().image(x11.display, attributes.visual, static_cast<unsigned int>(attributes.depth), ZPixmap, 0,
                     rows, width, height, bits, 0);
    if (image == nullptr) {
        return false;
    }
    // The rows are words of this machine; those of the server may be turned.
    image->byte_order = std::endian::native == std::endian::little ? LSBFirst : MSBFirst;
    xlib().put(x11.display, x11.window, DefaultGCOfScreen(attributes.screen), image, 0, 0, 0, 0, width,
               height);
    xlib().sync(x11.display, False);
    image->data = nullptr; // else it would be freed, too
    image->f.destroy_image(image);
    return true;
}

bool tellsLoss(SDL_Window* window, const SDL_Event& event) {
    if (window == nullptr || event.type != SDL_SYSWMEVENT || event.syswm.msg->subsystem != SDL_SYSWM_X11) {
        return false;
    }
    const XEvent& told = event.syswm.msg->msg.x11.event;
    return told.type == DestroyNotify && told.xdestroywindow.window == infoOf(window).info.x11.window;
}

bool hasManager() {
    const Window root = xlib().root(connection());
    return (attributesOf(connection(), root).all_event_masks & SubstructureRedirectMask) != 0;
}

void lendKeyboard() {
    xlib().getFocus(connection(), &formerFocus, &formerRevert);
    std::atexit(giveKeyboardBack);
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "web/page.h"

#include "platform/layout.h"
#include "platform/sound_queue.h"
#include "platform/xkbd.h"
#include "web/web.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace {

/// Keys that the program knows without a text of their own.
struct NamedKey {
    std::string_view name;
    const char* text;
    std::int32_t keycode;
};

constexpr NamedKey namedKeys[] = {
    {"Escape", "\x1b", 0}, {"ArrowUp", "", velm::XKBD_up}, {"ArrowDown", "", velm::XKBD_down}};

std::array<char, pageKeyBytes> keyName{};

/// True for a text of one character, in UTF-8.
bool isCharacter(std::string_view text) {
    const auto begins = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; };
    return std::count_if(text.begin(), text.end(), begins) == 1;
}

} // namespace

char* pageKeyName() {
    return keyName.data();
}

std::int32_t pageKey() {
    const char* const key = keyName.data();
    const auto* const named = std::find_if(std::begin(namedKeys), std::end(namedKeys),
                                           [key](const NamedKey& entry) { return entry.name == key; });
    if (named != std::end(namedKeys)) {
        velm::WEB_press(named->text, named->keycode);
        return 1;
    }
    if (isCharacter(key)) {
        velm::WEB_press(key, 0);
        return 1;
    }
    return 0;
}

std::int32_t pageScale(std::int32_t width, std::int32_t height, std::int32_t windowWidth,
                       std::int32_t windowHeight) {
    return velm::layoutFor(width, height, windowWidth, windowHeight).scale;
}

std::int32_t pageLeft(std::int32_t width, std::int32_t height, std::int32_t windowWidth,
                      std::int32_t windowHeight) {
    return velm::layoutFor(width, height, windowWidth, windowHeight).left;
}

std::int32_t pageTop(std::int32_t width, std::int32_t height, std::int32_t windowWidth,
                     std::int32_t windowHeight) {
    return velm::layoutFor(width, height, windowWidth, windowHeight).top;
}

void pagePoint(std::int32_t x, std::int32_t y) {
    velm::WEB_point(x, y);
}

void pageButton(std::int32_t number, std::int32_t isHeld) {
    velm::WEB_button(number, isHeld != 0);
}

void pageHeard(std::int32_t waiting, std::uint32_t received) {
    velm::WEB_heard(waiting, received);
}

std::int32_t pageSamplesAhead() {
    return static_cast<std::int32_t>(velm::SoundQueue::full);
}

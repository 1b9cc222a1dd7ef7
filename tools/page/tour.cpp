// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "page/page.h"

#include "demo/state.h"
#include "platform/layout.h"
#include "platform/sound_queue.h"
#include "web/web.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace velm {

PROGRAMME programme;

void startProgramme(const SCENE* first, bool isAlone) {
    programme = {};
    if (isAlone) {
        PROGRAMME_append(programme, first);
    } else {
        PROGRAMME_appendTour(programme);
        programme.next = std::max(PROGRAMME_placeOf(programme, first), 0);
    }
}

namespace {

const SCENE& sceneOf(std::int32_t number) {
    return SCENE_all()[static_cast<std::size_t>(number)];
}

Layout layoutIn(std::int32_t width, std::int32_t height) {
    return layoutFor(settings.windowWidth, settings.windowHeight, width, height);
}

/// Keys that write nothing.
struct NamedKey {
    std::string_view name;
    void (*act)();
};

constexpr NamedKey namedKeys[] = {
    {"Escape", [] { WEB_press("\x1b", 0); }},          {"ArrowUp", [] { WEB_press("", XKBD_up); }},
    {"ArrowDown", [] { WEB_press("", XKBD_down); }},   {"ArrowLeft", [] { PROGRAMME_previous(programme); }},
    {"ArrowRight", [] { PROGRAMME_next(programme); }},
};

std::array<char, pageKeyBytes> keyName{};

/// True for a text of one character, in UTF-8.
bool isCharacter(std::string_view text) {
    const auto begins = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; };
    return std::count_if(text.begin(), text.end(), begins) == 1;
}

} // namespace
} // namespace velm

using namespace velm;

std::int32_t pageSceneCount() {
    return static_cast<std::int32_t>(SCENE_all().size());
}

const char* pageSceneName(std::int32_t scene) {
    return sceneOf(scene).name.data();
}

const char* pageSceneText(std::int32_t scene) {
    return sceneOf(scene).description.data();
}

std::int32_t pageScene() {
    const SCENE* const scene = PROGRAMME_at(programme, programme.next - (programme.isPlaying ? 1 : 0));
    const auto all = SCENE_all();
    return scene == &SCENE_schedule || scene == nullptr ? -1 : static_cast<std::int32_t>(scene - all.data());
}

void pageGoTo(std::int32_t scene) {
    if (programme.count == 1) { // one alone: the tour joins it
        const bool isPlaying = programme.isPlaying;
        startProgramme(nullptr, false);
        programme.isPlaying = isPlaying;
    }
    PROGRAMME_goTo(programme, PROGRAMME_placeOf(programme, &sceneOf(scene)));
}

char* pageKeyName() {
    return keyName.data();
}

std::int32_t pageKey() {
    const char* const key = keyName.data();
    const auto* const named = std::find_if(std::begin(namedKeys), std::end(namedKeys),
                                           [key](const NamedKey& entry) { return entry.name == key; });
    if (named != std::end(namedKeys)) {
        named->act();
        return 1;
    }
    if (isCharacter(key)) {
        WEB_press(key, 0);
        return 1;
    }
    return 0;
}

std::int32_t pageIsPaused() {
    return demo.paused;
}

std::int32_t pageIsMuted() {
    return demo.muted;
}

std::int32_t pageRate() {
    return demo.fps != nullptr ? demo.fps->targetRate : 0;
}

std::int32_t pageScale(std::int32_t width, std::int32_t height) {
    return layoutIn(width, height).scale;
}

std::int32_t pageLeft(std::int32_t width, std::int32_t height) {
    return layoutIn(width, height).left;
}

std::int32_t pageTop(std::int32_t width, std::int32_t height) {
    return layoutIn(width, height).top;
}

void pagePoint(std::int32_t x, std::int32_t y) {
    WEB_point(x, y);
}

void pageButton(std::int32_t number, std::int32_t isHeld) {
    WEB_button(number, isHeld != 0);
}

void pageHeard(std::int32_t waiting, std::uint32_t received) {
    WEB_heard(waiting, received);
}

std::int32_t pageSamplesAhead() {
    return static_cast<std::int32_t>(SoundQueue::full);
}

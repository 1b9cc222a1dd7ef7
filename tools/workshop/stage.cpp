// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "workshop/stage.h"

#include "platform/clock.h"
#include "platform/dsp.h"

#include <algorithm>
#include <span>
#include <utility>

namespace velm {

namespace {

bool hasSound(const KIT& kit) {
    return kit.sound != nullptr && kit.sound->fd >= 0;
}

/// Hands over the key and the pointer of this frame.
void passInput(const KIT& kit, WindowSide& side) {
    if (kit.key != 0 || kit.keycode != 0) {
        std::string text = kit.keyboard->text + 1; // what KIT_nextFrame leaves of a text
        side.press(kit.key == 0 ? "" : kit.key + text, kit.keycode);
    }
    side.point({kit.pointer->x, kit.pointer->y, kit.pointer->buttons});
}

/// The samples that a frame of the window lasts, times the frames that were due since the last time: where
/// the window cannot keep its rate, the sound does.
std::size_t samplesDue(const KIT& kit, std::int64_t micros) {
    constexpr std::int64_t microsPerSecond = 1000000;
    constexpr std::int64_t most = 8;
    const std::int64_t frames =
        std::clamp<std::int64_t>((micros * kit.rate + microsPerSecond / 2) / microsPerSecond, 1, most);
    return static_cast<std::size_t>(frames * kit.sound->blockSamples);
}

} // namespace

void Stage::bringOn(const std::string& path, const KIT& kit) {
    next = std::make_unique<Program>(path, frame, hasSound(kit));
}

bool Stage::hasChanged() {
    return std::exchange(changed, false);
}

void Stage::change() {
    former = std::move(seen);
    seen = std::move(next);
    changed = true;
}

void Stage::takeFrame() {
    std::ranges::copy(seen->side().picture(), picture->pixels);
    seen->ask(++frame);
}

/// Sound of the program's own takes the place of the tune, from the next sample on, until it has been silent
/// for a while.
void Stage::passSound(KIT& kit) {
    if (!hasSound(kit)) {
        return;
    }
    const std::int64_t now = CLOCK_now();
    const std::size_t most = samplesDue(kit, now - std::exchange(soundAt, now));
    const auto play = [&kit](std::span<const std::int16_t> samples) {
        return DSP_write(kit.sound->fd, samples.data(), static_cast<std::int32_t>(samples.size())) > 0;
    };
    const bool hasPlayed = seen != nullptr && seen->side().passSound(most, play) > 0;
    silentFrames = hasPlayed ? 0 : std::min(silentFrames + 1, longSilence);
    kit.music = silentFrames < longSilence ? nullptr : tune;
    if (kit.music == nullptr) {
        LIST_setCount(kit.sound->queue, 0);
        kit.sound->position = 0;
    }
}

std::string Stage::draw(KIT& kit) {
    constexpr std::int64_t micros = 8000; // half of a frame
    std::string news;
    if (tune == nullptr) {
        tune = kit.music;
    }
    if (next != nullptr && next->side().hasDrawn(0)) {
        change();
        takeFrame();
    } else if (seen != nullptr && seen->side().hasDrawn(micros)) {
        takeFrame();
    }
    if (seen != nullptr) {
        passInput(kit, seen->side());
        news = seen->failure();
        if (!news.empty()) {
            seen = std::move(former);
        }
    }
    passSound(kit);
    if (next != nullptr && news.empty()) {
        news = next->failure();
        if (!news.empty()) {
            next.reset();
        }
    }
    IMG_copy(picture, kit.screen);
    return news;
}

} // namespace velm

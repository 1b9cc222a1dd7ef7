// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "workshop/stage.h"

#include "platform/dsp.h"

#include <algorithm>
#include <utility>

namespace velm {

namespace {

/// Sound of the program's own takes the place of the tune, from the next sample on. A program that writes
/// astray may have written anything into the channel.
void playSound(KIT& kit, const Channel& channel) {
    const std::int32_t samples = std::min(channel.samples, Channel::mostSamples);
    if (samples <= 0 || kit.sound == nullptr) {
        return;
    }
    kit.music = nullptr;
    LIST_setCount(kit.sound->queue, 0);
    kit.sound->position = 0;
    if (kit.sound->fd >= 0) {
        DSP_write(kit.sound->fd, channel.sound, samples);
    }
}

void handInput(const KIT& kit, Channel& channel) {
    channel.text[0] = kit.key;
    channel.text[1] = '\0';
    channel.keycode = kit.keycode;
    channel.x = kit.pointer->x;
    channel.y = kit.pointer->y;
    channel.buttons = kit.pointer->buttons;
}

} // namespace

void Stage::bringOn(const std::string& path, const KIT& kit) {
    next = std::make_unique<Program>(path, kit.frame);
}

bool Stage::hasChanged() {
    return std::exchange(changed, false);
}

void Stage::change() {
    former = std::move(seen);
    seen = std::move(next);
    changed = true;
}

void Stage::takeFrame(KIT& kit) {
    Channel& channel = seen->drawn();
    std::copy_n(channel.picture, Channel::size * Channel::size, picture->pixels);
    playSound(kit, channel);
    handInput(kit, channel);
    seen->ask(kit.frame + 1);
}

std::string Stage::draw(KIT& kit) {
    constexpr std::int64_t millis = 20;
    std::string news;
    if (tune == nullptr) {
        tune = kit.music;
    }
    kit.music = tune;
    if (next != nullptr && next->hasDrawn(0)) {
        change();
        takeFrame(kit);
    } else if (seen != nullptr && seen->hasDrawn(millis)) {
        takeFrame(kit);
    } else if (seen != nullptr) {
        news = seen->failure();
        if (!news.empty()) {
            seen = std::move(former);
        }
    }
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

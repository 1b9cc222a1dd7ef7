// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "hands.h"
#include "headless/headless.h"
#include "platform/xkbd.h"

namespace velm::test {
namespace {

class HeadlessHands : public Hands {
public:
    HeadlessHands() {
        headless.onFrame = [this](const IMG& frame) {
            picture.assign(frame.pixels, frame.pixels + std::int64_t{frame.width} * frame.height);
        };
        headless.onSound = [this](std::span<const std::int16_t> block) {
            sound.insert(sound.end(), block.begin(), block.end());
        };
    }

    void press(const std::string& key) override {
        constexpr char escape = 27;
        constexpr std::int32_t anyKeycode = 1;
        const char text = key == "Escape" ? escape : key.size() == 1 ? key[0] : '\0';
        headless.keys.push_back({headless.frames, text, key == "Up" ? XKBD_up : anyKeycode});
    }

    void point(int x, int y) override {
        place.x = x;
        place.y = y;
        tell();
    }
    void setButton(int button, bool isHeld) override {
        const int bit = 1 << (button - 1);
        place.buttons = isHeld ? place.buttons | bit : place.buttons & ~bit;
        tell();
    }

    std::vector<std::uint32_t> seen() override { return picture; }

    void setSound(bool isThere) override {
        headless.hasSound = isThere;
        sound.clear();
    }
    std::vector<std::int16_t> heard() override { return sound; }

    void tidy() override { picture.clear(); }

private:
    void tell() {
        place.frame = headless.frames;
        headless.pointers.push_back(place);
    }

    HeadlessPointer place{};
    std::vector<std::uint32_t> picture;
    std::vector<std::int16_t> sound;
};

} // namespace

Hands& hands() {
    static HeadlessHands one;
    return one;
}

} // namespace velm::test

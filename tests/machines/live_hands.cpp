// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The hands of a program that plays in another one's window: a thread stands in for the window, with its side
// of the channel, 60 frames a second, and a device that takes what it is given.
#include "hands.h"
#include "platform/xkbd.h"
#include "workshop/window_side.h"

#include <chrono>
#include <cstdlib>
#include <mutex>
#include <thread>

namespace velm::test {
namespace {

class LiveHands : public Hands {
public:
    LiveHands() {
        setenv(channelVariable, std::to_string(side.descriptor()).c_str(), 1);
        std::thread([this] { play(); }).detach();
    }

    void press(const std::string& key) override {
        key == "Escape" ? side.press("\x1b", 0) : key == "Up" ? side.press("", XKBD_up) : side.press(key, 0);
    }

    void point(int x, int y) override {
        pointer.x = x;
        pointer.y = y;
        side.point(pointer);
    }
    void setButton(int button, bool isHeld) override {
        const int bit = 1 << (button - 1);
        pointer.buttons = isHeld ? pointer.buttons | bit : pointer.buttons & ~bit;
        side.point(pointer);
    }

    std::vector<std::uint32_t> seen() override {
        const std::lock_guard lock(mutex);
        return picture;
    }

    void setSound(bool isThere) override {
        const std::lock_guard lock(mutex);
        hasSound = isThere;
        sound.clear();
    }
    std::vector<std::int16_t> heard() override {
        const std::lock_guard lock(mutex);
        return sound;
    }

    void tidy() override {
        const std::lock_guard lock(mutex);
        picture.clear();
    }

private:
    [[noreturn]] void play() {
        constexpr std::chrono::microseconds period(1000000 / Channel::mostRate);
        for (std::int32_t frame = 1;; std::this_thread::sleep_for(period)) {
            const std::lock_guard lock(mutex);
            if (side.hasDrawn(0)) {
                picture.assign(side.picture().begin(), side.picture().end());
                side.ask(++frame);
            }
            constexpr std::size_t block = 44100 / Channel::mostRate + 1;
            side.passSound(block, [this](std::span<const std::int16_t> samples) {
                if (hasSound) {
                    sound.insert(sound.end(), samples.begin(), samples.end());
                }
                return hasSound;
            });
        }
    }

    WindowSide side{1, true};
    Channel::Pointer pointer{};
    std::mutex mutex; ///< of what follows
    std::vector<std::uint32_t> picture;
    std::vector<std::int16_t> sound;
    bool hasSound = true;
};

} // namespace

Hands& hands() {
    static LiveHands& one = *new LiveHands; // its thread runs to the process's end
    return one;
}

} // namespace velm::test

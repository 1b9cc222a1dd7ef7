// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The hands of the page: this program stands in for the browser, with a display of 60 frames a second and a
// speaker that tells at once what it was given.
#include "hands.h"
#include "platform/clock.h"
#include "platform/xkbd.h"
#include "web/browser.h"
#include "web/web.h"

#include <chrono>
#include <thread>

namespace velm::test {
namespace {

class WebHands : public Hands {
public:
    void press(const std::string& key) override {
        key == "Escape" ? WEB_press("\x1b", 0)
        : key == "Up"   ? WEB_press("", XKBD_up)
                        : WEB_press(key.c_str(), 1);
    }

    void point(int x, int y) override { WEB_point(x, y); }
    void setButton(int button, bool isHeld) override { WEB_button(button, isHeld); }

    std::vector<std::uint32_t> seen() override {
        std::vector<std::uint32_t> pixels;
        for (const std::uint32_t pixel : canvas) { // what is not opaque must not pass for a pixel of ours
            pixels.push_back((~pixel & 0xFF000000) | (pixel & 0xFF) << 16 | (pixel & 0xFF00) |
                             (pixel >> 16 & 0xFF));
        }
        return pixels;
    }

    void setSound(bool isThere) override {
        hasSound = isThere;
        sound.clear();
    }
    std::vector<std::int16_t> heard() override { return sound; }

    void tidy() override { canvas.clear(); }

    std::vector<std::uint32_t> canvas;
    std::vector<std::int16_t> sound;
    std::uint32_t received = 0; ///< samples in all
    bool hasSound = true;
};

WebHands& webHands() {
    static WebHands one;
    return one;
}

} // namespace

Hands& hands() {
    return webHands();
}

} // namespace velm::test

using velm::test::webHands;

void browserShow(const std::uint32_t* pixels, std::int32_t width, std::int32_t height) {
    webHands().canvas.assign(pixels, pixels + std::int64_t{width} * height);
}

void browserWaitForDisplay() {
    constexpr std::int64_t period = 16667;
    browserWait(static_cast<std::int32_t>(period - velm::CLOCK_now() % period));
}

void browserWait(std::int32_t micros) {
    std::this_thread::sleep_for(std::chrono::microseconds(micros));
}

std::int32_t browserPlay(const std::int16_t* samples, std::int32_t count) {
    if (!webHands().hasSound) {
        return 0;
    }
    webHands().sound.insert(webHands().sound.end(), samples, samples + count);
    webHands().received += static_cast<std::uint32_t>(count);
    velm::WEB_heard(0, webHands().received);
    return 1;
}

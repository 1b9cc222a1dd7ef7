// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The hands of a machine whose window is on a real X server and whose sound goes through a real sound server.
#include "hands.h"
#include "pulse_server.h"
#include "x11_session.h"

namespace velm::test {
namespace {

constexpr int pictureSize = 256;

class WindowHands : public Hands {
public:
    WindowHands() {
        setenv("DISPLAY", server.display().c_str(), 1);
        for (const auto& [name, value] : sound.pulse) {
            setenv(name.c_str(), value.c_str(), 1);
        }
    }

    void press(const std::string& key) override {
        const Place place = picture();
        session.movePointer(place.x + pictureSize / 2,
                            place.y + pictureSize / 2); // there it has the keyboard
        session.press(key);
    }
    void pressClose() override { session.sendClose(session.findDemo()); }

    void point(int x, int y) override {
        const Place place = picture();
        session.movePointer(place.x + x * place.scale, place.y + y * place.scale);
    }
    void setButton(int button, bool isHeld) override {
        session.xdotool({isHeld ? "mousedown" : "mouseup", std::to_string(button)});
    }

    std::vector<std::uint32_t> seen() override {
        const Place place = picture();
        if (place.scale == 0) {
            return {};
        }
        const auto side = static_cast<unsigned int>(pictureSize * place.scale);
        const auto pixels = session.screen(place.x, place.y, side, side);
        std::vector<std::uint32_t> all;
        for (int y = 0; y < pictureSize; ++y) {
            for (int x = 0; x < pictureSize; ++x) {
                const auto at =
                    static_cast<std::size_t>(y * place.scale * static_cast<int>(side) + x * place.scale);
                all.push_back(static_cast<std::uint32_t>(pixels[at]));
            }
        }
        return all;
    }

    void setSound(bool isThere) override {
        if (isThere) {
            sound.startServer();
            EXPECT_TRUE(eventually([this] { return !sound.recorded().empty(); })) << "nobody listens";
        } else if (sound.pulseaudio != nullptr) {
            sound.pulseaudio->signal(9);
        }
    }
    std::vector<std::int16_t> heard() override { return sound.recorded(); }

    void tidy() override {
        if (const ::Window window = session.findDemo(); window != 0) {
            XDestroyWindow(session.connection, window);
            XSync(session.connection, False);
        }
    }

private:
    /// Where the picture is on the screen: as large as whole multiples allow, in the middle of its window.
    struct Place {
        int x, y, scale;
    };
    [[nodiscard]] Place picture() const {
        const ::Window window = session.findDemo();
        if (window == 0) {
            return {};
        }
        const Session::Place place = session.placeOf(window);
        const int scale = std::max(std::min(place.width, place.height) / pictureSize, 1);
        const auto margin = [scale](int length) { return (length - pictureSize * scale) / 2; };
        return {place.x + margin(place.width), place.y + margin(place.height), scale};
    }

    XServer server{"24", "640x600"};
    Session session{server.display()};
    PulseServer sound;
};

} // namespace

Hands& hands() {
    static WindowHands one;
    return one;
}

} // namespace velm::test

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The player on a real X server, and what a viewer sees of it. A pause freezes the picture, so a screenshot
// can be looked up among the frames of a capture.
//
//     Stage stage("24", "640x480", {});
//     stage.play({"--scale", "1"});
//     stage.pause();
//     stage.expectShown(1, 0, 0);
#pragma once

#include "process.h"
#include "x11_session.h"

#include <csignal>
#include <map>

namespace velm::test {

inline constexpr int pictureSize = 256;
inline constexpr std::size_t framePixels = std::size_t{pictureSize} * pictureSize;
inline constexpr std::ptrdiff_t startFrames =
    33; ///< the logo and its fading out; the last ones are all black

using Frame = std::vector<std::uint32_t>;

/// The demo's first frames, from the capture tool.
inline const std::vector<Frame>& captured() {
    static const std::vector<Frame> all = [] {
        const std::string path = temporaryFile();
        EXPECT_EQ(runTool({VELM_CAPTURE, "--frames", "400", "--quiet", "--raw", path}, {}), 0);
        const std::string raw = contents(path);
        std::filesystem::remove(path);
        std::vector<Frame> frames(raw.size() / (4 * framePixels), Frame(framePixels));
        for (std::size_t i = 0; i < frames.size(); ++i) {
            std::memcpy(frames[i].data(), &raw[i * 4 * framePixels], 4 * framePixels);
        }
        return frames;
    }();
    return all;
}

inline std::size_t checksum(const std::vector<unsigned long>& pixels) {
    return std::hash<std::string_view>()(
        {reinterpret_cast<const char*>(pixels.data()), pixels.size() * sizeof pixels[0]});
}

/// The numbers of the captured frames past the logo by the checksums of what a screen of a depth shows.
inline const std::map<std::size_t, std::size_t>& numbersAt(const std::string& depth) {
    static std::map<std::string, std::map<std::size_t, std::size_t>> all;
    std::map<std::size_t, std::size_t>& numbers = all[depth];
    const int bits = std::stoi(depth);
    const std::size_t first = numbers.empty() ? startFrames : captured().size();
    for (std::size_t i = first; i < captured().size(); ++i) {
        std::vector<unsigned long> shown(framePixels);
        std::ranges::transform(captured()[i], shown.begin(),
                               [bits](std::uint32_t pixel) { return onScreen(bits, pixel); });
        numbers.emplace(checksum(shown), i + 1);
    }
    return numbers;
}

/// A player on a server, and what a viewer sees of it.
class Stage {
public:
    Stage(std::string serverDepth, const std::string& size,
          const std::vector<std::string>& serverArguments = {})
        : depth(std::move(serverDepth)), server(depth, size, serverArguments), session(server.display()) {
        // The pointer rests where windows get the keyboard. It does not move, so the demo leaves it in its
        // corner.
        session.movePointer(320, 240);
    }
    ~Stage() { std::filesystem::remove(spyLog); }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// Starts the player and waits until the demo is past its logo.
    void start(std::vector<std::string> arguments) {
        numbersAt(depth); // takes a while, and the player soon runs beyond the captured frames
        std::ofstream(spyLog, std::ios::trunc);
        arguments.insert(arguments.begin(), {VELM_PLAYER, "schedule"});
        player = std::make_unique<Child>(arguments, spied(server.display(), spyLog, more));
        ASSERT_TRUE(eventually([this] { return puts() > startFrames + 3; })) << player->errors();
    }

    /// The same in a window of its own, silent.
    void play(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"--sound", "none"});
        start(std::move(arguments));
        window = session.findDemo();
        ASSERT_NE(window, 0U);
    }

    /// Presses Escape, at which the player leaves without a word.
    void leave() const {
        session.press("Escape");
        EXPECT_EQ(player->waitForExit(), 0);
        EXPECT_EQ(player->errors(), "");
    }

    /// Starts a window manager, which ends with the stage.
    void bringManager() {
        const std::string started = temporaryFile();
        manager = std::make_unique<Child>(
            std::vector<std::string>{"openbox", "--sm-disable", "--startup", "rm " + started},
            Environment{{"DISPLAY", server.display()}});
        ASSERT_TRUE(eventually([&] { return !std::filesystem::exists(started); }));
    }

    /// A green window of the test's.
    [[nodiscard]] ::Window makeWindow(int x, int y, unsigned int width, unsigned int height) const {
        ::Display* const display = session.connection;
        const ::Window made =
            XCreateSimpleWindow(display, DefaultRootWindow(display), x, y, width, height, 0, 0, 0x00FF00);
        XMapRaised(display, made);
        XSync(display, False);
        return made;
    }

    /// Pictures sent so far.
    [[nodiscard]] std::ptrdiff_t puts() const {
        const std::string log = contents(spyLog);
        return std::count(log.begin(), log.end(), '\n');
    }

    void awaitStandstill() const {
        ASSERT_TRUE(standsStill(*player, [this] { return puts(); })) << "pictures still come";
    }

    void pause() const {
        session.press("p");
        awaitStandstill();
    }

    /// What a viewer sees of the window.
    struct View {
        Session::Place place;
        std::vector<unsigned long> pixels;
    };
    [[nodiscard]] View look() const {
        const Session::Place place = session.placeOf(window);
        return {place, session.screen(place.x, place.y, static_cast<unsigned int>(place.width),
                                      static_cast<unsigned int>(place.height))};
    }

    /// The number of the captured frame that stands at `scale` from (left, top) on, black around; 0 for none.
    [[nodiscard]] std::size_t frameIn(const View& view, int scale, int left, int top) const {
        std::vector<unsigned long> picture(framePixels);
        for (int y = 0; y < view.place.height; ++y) {
            for (int x = 0; x < view.place.width; ++x) {
                const unsigned long pixel = view.pixels[static_cast<std::size_t>(y * view.place.width + x)];
                const int column = x - left;
                const int row = y - top;
                const bool isInside =
                    std::min(column, row) >= 0 && std::max(column, row) < pictureSize * scale;
                unsigned long& seen = picture[static_cast<std::size_t>(
                    isInside ? row / scale * pictureSize + column / scale : 0)];
                if (isInside && row % scale == 0 && column % scale == 0) {
                    seen = pixel;
                } else if (pixel != (isInside ? seen : 0)) {
                    return 0;
                }
            }
        }
        const auto& numbers = numbersAt(depth);
        const auto found = numbers.find(checksum(picture));
        return found == numbers.end() ? 0 : found->second;
    }

    [[nodiscard]] std::size_t shown(int scale, int left, int top) const {
        return frameIn(look(), scale, left, top);
    }

    /// The same of a player that runs: it stands still while it is looked at, no longer.
    [[nodiscard]] bool runsAt(int scale, int left, int top) const {
        player->signal(SIGSTOP);
        const View view = look();
        player->signal(SIGCONT);
        return frameIn(view, scale, left, top) != 0;
    }

    /// Waits for the server: it reads the player's connection and the viewer's in the order that it likes.
    void expectShown(int scale, int left, int top) const {
        EXPECT_TRUE(eventually([&] { return shown(scale, left, top) != 0; })) << "not a frame of the demo";
    }

    std::string depth;
    XServer server;
    Session session;
    Environment more; ///< of the player's
    std::string spyLog = temporaryFile();
    std::unique_ptr<Child> manager;
    std::unique_ptr<Child> player;
    ::Window window = 0;
};

} // namespace velm::test

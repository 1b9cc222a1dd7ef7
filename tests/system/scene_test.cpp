// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What a viewer of the default scene sees when the keys are pressed and the pointer moves.
#include "demo/assets.h"
#include "effects/lfont.h"
#include "running_demo.h"
#include "support/owned.h"
#include "vector/objects.h"

namespace velm::test {
namespace {

constexpr int border = 2; ///< the window's, at the screen's corner

class SceneTest : public RunningDemo {
protected:
    /// The window's pixels.
    [[nodiscard]] std::vector<unsigned long> window() const {
        return session->screen(border, border, 256, 256);
    }

    /// True when every visible pixel of `picture`, put at (x, y), stands on the screen.
    [[nodiscard]] bool shows(const IMG* picture, std::int32_t x, std::int32_t y) const {
        const auto pixels = window();
        for (std::int32_t i = 0; i < picture->width * picture->height; ++i) {
            const std::int32_t at = x + i % picture->width + (y + i / picture->width) * 256;
            if (picture->pixels[i] != 0 && pixels[static_cast<std::size_t>(at)] != picture->pixels[i]) {
                return false;
            }
        }
        return true;
    }
};

TEST_F(SceneTest, ThePointerPictureFollowsTheRealPointer) {
    const Picture picture(IMG_fromPNM(assets::pointer.bytes, assets::pointer.size));
    waitForScene();
    const int places[][2] = {{20, 110}, {200, 90}, {60, 180}};
    for (const auto& place : places) {
        const int x = place[0];
        const int y = place[1];
        session->movePointer(x + border, y + border);
        EXPECT_TRUE(eventually([&] { return shows(picture, x, y); })) << x << ", " << y;
    }
}

TEST_F(SceneTest, SpaceWalksToTheNextScene) {
    waitForScene();
    // The default scene begins by fading the last picture out: the second of 32 passes is black already. One
    // time in 64 the ball comes instead, which fades nothing, so Space is pressed until three scenes have
    // faded in.
    std::size_t before = puts().size();
    int faded = 0;
    for (int presses = 0; presses < 8 && faded < 3; ++presses) {
        session->press("space");
        const bool fades = eventually(
            [&] {
                const std::vector<std::uint32_t> all = puts();
                std::size_t black = 0;
                for (std::size_t k = before; k < all.size(); ++k) {
                    black += all[k] == 0 ? 1 : 0;
                }
                return black >= 31 && all.back() != 0;
            },
            4);
        faded += fades ? 1 : 0;
        before = puts().size();
    }
    EXPECT_EQ(faded, 3);
}

} // namespace
} // namespace velm::test

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/mouse.h"
#include "platform/xdpy.h"
#include "platform/xptr.h"
#include "support/owned.h"

namespace velm::test {
namespace {

/// A pointer picture of noise over a target of noise, in an open window.
struct Mouse : testing::Test {
    Mouse() {
        mouse->pointer = &pointer;
        mouse->image = image;
        mouse->target = target;
        MOUSE_update(mouse);
    }

    XPTR pointer{.x = 30, .y = -2, .reserved = {1, 2, 3, 4}, .buttons = 5};
    Picture image{noise(16, 16, 1)};
    Picture target{noise(32, 32, 2)};
    XDPY* display{XDPY_open()};
    Owned<MOUSE_delete> mouse{MOUSE_new()};
};

TEST_F(Mouse, MOUSE_drawGoesOnAndMOUSE_cloneGivesNothing) {
    const Picture expected(noise(32, 32, 2));
    IMG_blit(image, expected, 0, 0, 30, -2, 16, 16);
    MOUSE_draw(mouse);
    EXPECT_EQ(difference(target, expected), "");
    EXPECT_EQ(MOUSE_clone(mouse), nullptr);
    mouse->target = nullptr;
    MOUSE_verbose = IMG_verbose = 1;
    EXPECT_EQ(printedBy([&] { MOUSE_draw(mouse); }), "MOUSE error\nIMG error\n");
    MOUSE_verbose = IMG_verbose = 0;
    XDPY_close(&display);
    expectReports(MOUSE_verbose, 2, "MOUSE error", [] { MOUSE_new(), MOUSE_delete(nullptr); });
}

TEST_F(Mouse, CopiesStateAndPictures) {
    const Owned<MOUSE_delete> copy(MOUSE_new());
    MOUSE_copy(mouse, copy);
    EXPECT_EQ(MOUSE_equals(mouse, copy), 1);
    EXPECT_EQ(copy->buttons, 5);
    EXPECT_EQ(copy->pointer, nullptr);
    ++copy->reserved[3];
    EXPECT_EQ(MOUSE_equals(mouse, copy), 0);
    XDPY_close(&display);
}

} // namespace
} // namespace velm::test

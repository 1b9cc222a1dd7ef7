// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/mouse.h"
#include "effects/owned.h"
#include "platform/xdpy.h"
#include "support/capture_stdout.h"

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
    Owned<XDPY, XDPY_close> display{XDPY_open()};
    Owned<MOUSE, MOUSE_delete> mouse{MOUSE_new()};
};

} // namespace

TEST_F(Mouse, DrawsTheVisiblePartWhereThePointerIs) {
    const Picture expected(noise(32, 32, 2));
    for (std::int32_t i = 0; i < 16 * 16; ++i) {
        if (image->pixels[i] != 0) {
            IMG_putPixel(expected, 30 + i % 16, -2 + i / 16, image->pixels[i]);
        }
    }
    MOUSE_draw(mouse);
    EXPECT_EQ(firstDifference(target, expected), "");
}

TEST_F(Mouse, CopiesStateAndPictures) {
    const Owned<MOUSE, MOUSE_delete> copy(MOUSE_new());
    EXPECT_EQ(MOUSE_equals(mouse, copy), 0);
    MOUSE_copy(mouse, copy);
    EXPECT_EQ(MOUSE_equals(mouse, copy), 1);
    EXPECT_EQ(copy->buttons, 5);
    EXPECT_EQ(copy->pointer, nullptr);
    ++copy->reserved[3];
    EXPECT_EQ(MOUSE_equals(mouse, copy), 0);
}

TEST_F(Mouse, MOUSE_drawGoesOn) {
    mouse->target = nullptr;
    MOUSE_verbose = IMG_verbose = 1;
    EXPECT_EQ(printedBy([&] { MOUSE_draw(mouse); }), "MOUSE error\nIMG error\n");
    MOUSE_verbose = IMG_verbose = 0;
}

TEST_F(Mouse, MOUSE_cloneGivesNothing) {
    EXPECT_EQ(MOUSE_clone(mouse), nullptr);
}

} // namespace velm::test

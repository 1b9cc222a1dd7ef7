// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What demo and effects rely on, whatever machine is behind the seam: the same cases for each of them.
#include "foundation/list.h"
#include "hands.h"
#include "platform/clock.h"
#include "platform/dsp.h"
#include "platform/xdpy.h"
#include "platform/xkbd.h"
#include "platform/xptr.h"
#include "platform/xsnd.h"
#include "process.h"
#include "pulse_server.h"
#include "support/owned.h"

#include <csignal>

namespace velm::test {
namespace {

constexpr std::int32_t windowSize = 256;
constexpr char escape = 27;
constexpr double slack = 10; ///< seconds by which a busy machine may be late

volatile std::sig_atomic_t rung = 0; ///< alarms so far

class MachineTest : public testing::Test {
protected:
    void SetUp() override {
        hands();
        display = XDPY_open();
        ASSERT_NE(display, nullptr);
        keyboard = XKBD_new();
    }
    void TearDown() override {
        if (display != nullptr) {
            XDPY_close(&display);
        }
        hands().tidy();
    }

    /// Polls until a key has come, and takes it: its text, or "-" when it stands for none.
    [[nodiscard]] std::string key() const {
        keyboard->text[0] = '\0';
        keyboard->keycode = 0;
        EXPECT_TRUE(eventually([this] {
            XKBD_poll(keyboard);
            return keyboard->keycode != 0 || keyboard->text[0] != '\0';
        }));
        return keyboard->text[0] == '\0' ? "-" : std::string(1, keyboard->text[0]);
    }

    /// Waits for the screen: a server reads what it is sent when it likes.
    static void expectShown(const IMG* frame) {
        EXPECT_TRUE(eventually([frame] { return shows(frame); }));
    }
    static bool shows(const IMG* frame) {
        const std::vector<std::uint32_t> seen = hands().seen();
        return seen.size() == std::size_t{windowSize} * windowSize &&
               std::equal(seen.begin(), seen.end(), frame->pixels);
    }

    XDPY* display = nullptr;
    XKBD* keyboard = nullptr;
};

TEST_F(MachineTest, OpensTheWindowThatItsRecordTells) {
    EXPECT_EQ(display->width, 256U);
    EXPECT_EQ(display->height, 256U);
    EXPECT_GE(display->depth, 15U);
    EXPECT_TRUE(XDPY_isOpen());
    EXPECT_EQ(XDPY_get(display), display);
    EXPECT_EQ(XDPY_same(display, display), 1);
    EXPECT_STREQ(XDPY_getName(display), "");
    EXPECT_EQ(XDPY_dump.on, 0);
}

TEST_F(MachineTest, ShowsFramesOfItsSizeAndReportsOthers) {
    const Picture first(noise(windowSize, windowSize, 1));
    const Picture second(noise(windowSize, windowSize, 2));
    XDPY_present(display, first);
    expectShown(first);
    XDPY_present(display, second);
    expectShown(second);
    const Picture narrow(noise(windowSize - 1, windowSize, 3));
    const Picture empty(IMG_new());
    expectReports(XDPY_verbose, 4, "XDPY error", [&] {
        XDPY_present(display, narrow), XDPY_present(display, empty);
        XDPY_present(display, nullptr), XDPY_present(nullptr, first);
    });
    expectShown(second);
}

TEST_F(MachineTest, GivesKeysOneAPollInTheirOrder) {
    EXPECT_EQ(XKBD_new(), keyboard) << "there is one record";
    for (const char* name : {"a", "Up", "b", "a"}) {
        hands().press(name);
    }
    EXPECT_EQ(key(), "a");
    EXPECT_EQ(key(), "-");
    EXPECT_EQ(keyboard->keycode, 98) << "the arrow up, whatever the keyboard has for it";
    EXPECT_EQ(key(), "b");
    EXPECT_NE(keyboard->keycode, 98);
    EXPECT_EQ(key(), "a");
    keyboard->keycode = 5;
    XKBD_poll(keyboard);
    EXPECT_EQ(keyboard->keycode, 5) << "without a key the record stays";
    hands().press("Escape");
    EXPECT_EQ(key()[0], escape);
    hands().pressClose();
    EXPECT_EQ(key()[0], escape);
}

TEST_F(MachineTest, XPTR_firstMotionWins) {
    const Owned<XPTR_delete> pointer(XPTR_new());
    EXPECT_EQ(pointer->x + pointer->y + pointer->buttons, 0);
    const auto pollUntil = [&](auto holds) {
        ASSERT_TRUE(eventually([&] {
            XPTR_poll(pointer);
            return holds();
        }));
    };
    hands().point(190, 190); // where it comes in may be no motion yet
    ASSERT_TRUE(eventually([&] {
        XPTR_query(pointer);
        return pointer->x == 190;
    }));
    XPTR_flush(pointer);
    hands().point(200, 210);
    pollUntil([&] { return pointer->x == 200 && pointer->y == 210; });
    hands().point(20, 30), hands().point(120, 130);
    pollUntil([&] { return pointer->x != 200; });
    EXPECT_EQ(pointer->x, 20);
    EXPECT_EQ(pointer->y, 30);
    XPTR_query(pointer);
    EXPECT_EQ(pointer->x, 120);
    EXPECT_EQ(pointer->y, 130);
    EXPECT_EQ(XPTR_flush(pointer), 0);
    XPTR_poll(pointer);
    EXPECT_EQ(pointer->x, 120) << "nothing is left of the frame";
}

TEST_F(MachineTest, TellsWhichOfThreeButtonsAreHeld) {
    const Owned<XPTR_delete> pointer(XPTR_new());
    hands().point(100, 100);
    pointer->buttons = 8;
    const auto expectButtons = [&](std::int32_t buttons) {
        EXPECT_TRUE(eventually([&] {
            XPTR_poll(pointer);
            return pointer->buttons == (8 | buttons);
        })) << pointer->buttons
            << " is not " << buttons << " and the bit that is left alone";
    };
    for (const int button : {1, 2, 3}) {
        hands().setButton(button, true);
        expectButtons(1 << (button - 1));
        pointer->buttons = 8;
        XPTR_query(pointer);
        EXPECT_EQ(pointer->buttons, 8 | 1 << (button - 1)) << "a query tells what is, not what has come";
        hands().setButton(button, false);
        expectButtons(0);
    }
    hands().setButton(1, true);
    expectButtons(1);
    hands().setButton(3, true);
    expectButtons(5);
    hands().setButton(1, false);
    expectButtons(4);
    hands().setButton(3, false);
    expectButtons(0);
}

TEST_F(MachineTest, XPTR_cloneGivesNothing) {
    const Owned<XPTR_delete> pointer(XPTR_new());
    EXPECT_EQ(XPTR_clone(pointer), nullptr);
    XPTR twin = *static_cast<XPTR*>(pointer);
    EXPECT_EQ(XPTR_equals(pointer, &twin), 1);
    twin.reserved[3] = 1;
    EXPECT_EQ(XPTR_equals(pointer, &twin), 0);
}

TEST_F(MachineTest, RestsBrieflyAndMissesNoKey) {
    constexpr int rests = 20;
    const double begin = secondsNow();
    for (int i = 0; i < rests; ++i) {
        XKBD_rest(keyboard);
    }
    EXPECT_LT(secondsNow() - begin, rests * XKBD_longestRest / 1e6 + slack);
    hands().press("p");
    keyboard->text[0] = '\0';
    EXPECT_TRUE(eventually([this] {
        XKBD_rest(keyboard);
        XKBD_poll(keyboard);
        return keyboard->text[0] == 'p';
    }));
}

TEST_F(MachineTest, TimeNeverRunsBackAndSleepsTakeTheirs) {
    std::int64_t last = CLOCK_now();
    for (int i = 0; i < 10000; ++i) {
        const std::int64_t now = CLOCK_now();
        ASSERT_GE(now, last);
        last = now;
    }
    constexpr std::int32_t frame = 20000;
    constexpr int frames = 5;
    for (int i = 0; i < frames; ++i) {
        CLOCK_sleep(frame);
    }
    const std::int64_t slept = CLOCK_now() - last;
    EXPECT_GE(slept, frames * frame * 9 / 10);
    EXPECT_LT(static_cast<double>(slept), frames * frame + 1e6 * slack);
}

TEST_F(MachineTest, RingsTheAlarmOnceOrOverAndOver) {
    std::signal(SIGALRM, [](int) { rung = rung + 1; });
    const auto sleepUntil = [](int count) {
        for (int i = 0; rung < count && i < 10000; ++i) {
            CLOCK_sleep(1000);
        }
    };
    CLOCK_alarm(2000, 0);
    sleepUntil(1);
    CLOCK_sleep(10000);
    EXPECT_EQ(rung, 1);
    CLOCK_alarm(2000, 1000);
    CLOCK_alarm(CLOCK_longestAlarm + 1, 0); // refused
    sleepUntil(4);
    EXPECT_GE(rung, 4);
    CLOCK_alarm(0, 0);
    const int before = rung;
    CLOCK_sleep(10000);
    EXPECT_EQ(rung, before);
    std::signal(SIGALRM, SIG_DFL);
}

TEST_F(MachineTest, ClosesAndOpensAgain) {
    XDPY* const old = display;
    XDPY_close(&display);
    EXPECT_EQ(display, nullptr);
    EXPECT_FALSE(XDPY_isOpen());
    EXPECT_EQ(XDPY_current, nullptr);
    EXPECT_EQ(XDPY_get(old), nullptr);
    EXPECT_EQ(XPTR_new(), nullptr);
    XKBD_rest(keyboard);
    XKBD_poll(keyboard);
    expectReports(XDPY_verbose, 2, "XDPY error", [this] { XDPY_close(&display), XDPY_close(nullptr); });
    display = XDPY_open();
    const Picture frame(noise(windowSize, windowSize, 4));
    EXPECT_TRUE(eventually([&] {
        XDPY_present(display, frame);
        return shows(frame);
    }));
}

TEST(MachineDeathTest, APollWithoutAKeyboardLeavesWithStatus0) {
    EXPECT_EXIT(XKBD_poll(nullptr), testing::ExitedWithCode(0), "");
}

class MachineSoundTest : public testing::Test {
protected:
    void SetUp() override { hands(); }
    void TearDown() override {
        if (sound != nullptr) {
            XSND_delete(&sound);
        }
    }

    /// A record whose queue holds a second of noise, which nothing else sounds like, between silences.
    void open() {
        sound = XSND_new();
        ASSERT_NE(sound, nullptr);
        SAMPLE_setLength(silence, 3 * SAMPLE_rate);
        Images random(1);
        for (std::int32_t i = 0; i < SAMPLE_rate; ++i) {
            SAMPLE_append(bar, random.number(-9000, 9000));
        }
        LIST_append(sound->queue, silence), LIST_append(sound->queue, bar);
        LIST_append(sound->queue, silence);
    }

    /// Plays as the demo does, a block a frame, until so many frames are over or the queue is.
    void play(int frames) const {
        constexpr std::int32_t frameMicros = 1000000 / 30;
        for (int frame = 0; frame < frames && XSND_play(sound) != 0; ++frame) {
            CLOCK_sleep(frameMicros);
        }
    }

    /// What XSND_play() takes in the middle one of so many frames, in seconds: on a busy machine some take
    /// long.
    [[nodiscard]] double usualWait(int frames) const {
        std::vector<double> waits;
        for (int frame = 0; frame < frames; ++frame) {
            const double begin = secondsNow();
            XSND_play(sound);
            waits.push_back(secondsNow() - begin);
        }
        std::ranges::nth_element(waits, waits.begin() + frames / 2);
        return waits[static_cast<std::size_t>(frames / 2)];
    }
    static constexpr double quick = 0.005; ///< a sixth of a frame

    /// True when a stretch of the noise was heard: a machine under load may miss some.
    [[nodiscard]] bool isHeard() const {
        const Sound heard = hands().heard();
        constexpr std::int32_t length = 1000;
        bool isFound = false;
        for (std::int32_t at = 0; !isFound && at + length <= bar->length; at += 4 * length) {
            isFound = contains(heard, Sound(bar->data + at, bar->data + at + length), 0);
        }
        return isFound;
    }

    Owned<SAMPLE_delete> bar{SAMPLE_new()};
    Owned<SAMPLE_delete> silence{SAMPLE_new()};
    XSND* sound = nullptr;
};

TEST_F(MachineSoundTest, WhatTheDeviceTakesIsHeard) {
    hands().setSound(true);
    open();
    ASSERT_GE(sound->fd, 0);
    EXPECT_EQ(sound->blockSamples, sound->blockSize / 2);
    constexpr int longEnough = 300;
    play(longEnough);
    EXPECT_GT(sound->samplesWritten, bar->length + silence->length);
    EXPECT_TRUE(eventually([this] { return isHeard(); }));
}

TEST_F(MachineSoundTest, TheBlockFollowsTheFrameRateWhereTheDeviceLetsIt) {
    hands().setSound(true);
    open();
    ASSERT_GE(sound->fd, 0);
    for (const std::int32_t rate : {60, 30, 60}) {
        const std::int32_t before = sound->blockSize;
        const std::int32_t suits = DSP_frameRate(sound->fd, rate);
        EXPECT_TRUE(suits == 0 || suits == DSP_blockBytes(rate)) << suits;
        XSND_setFrameRate(sound, rate);
        EXPECT_EQ(sound->blockSize, suits == 0 ? before : suits);
        EXPECT_EQ(sound->blockSamples, sound->blockSize / 2);
        const std::int32_t position = sound->position;
        XSND_play(sound);
        EXPECT_EQ(sound->position - position, sound->blockSamples);
    }
}

TEST_F(MachineSoundTest, WithoutADeviceNothingWaits) {
    hands().setSound(false);
    open();
    XSND_setFrameRate(sound, 60);
    EXPECT_LT(usualWait(100), quick);
    EXPECT_EQ(XSND_play(sound), 1);
    if (sound->fd < 0) { // else it waits for one that may come
        EXPECT_EQ(sound->block, nullptr);
        EXPECT_EQ(sound->samplesWritten, 0);
        EXPECT_EQ(sound->position, 0);
    }
}

TEST_F(MachineSoundTest, ADeviceThatIsLostCostsOnlySilence) {
    hands().setSound(true);
    open();
    ASSERT_GE(sound->fd, 0);
    constexpr int second = 30;
    play(second);
    hands().setSound(false);
    EXPECT_LT(usualWait(2 * second), quick);
}

} // namespace
} // namespace velm::test

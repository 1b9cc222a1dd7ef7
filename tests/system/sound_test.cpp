// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The finished program on a real sound server, reached through the library that stands in for "/dev/dsp".
#include "sound_server.h"

namespace velm::test {
namespace {

using SoundTest = SoundServer;

TEST_F(SoundTest, TheBarIsHeardMutedAndHeardAgain) {
    const Sound stretch = loudestWindow(captured(140));
    ASSERT_FALSE(isSilent(stretch));
    Child demo({VELM_PROGRAM}, withDevice());
    ASSERT_TRUE(eventually([&] { return contains(recorded(), stretch, 0); }))
        << demo.errors() << recorder->errors();

    session.movePointer(128, 128);
    session.press("0");
    const auto lastSecondIsSilent = [this] {
        const Sound heard = recorded();
        return heard.size() > samplesPerSecond && isSilent({heard.end() - samplesPerSecond, heard.end()});
    };
    EXPECT_TRUE(eventually(lastSecondIsSilent)) << "muted";
    const std::size_t heardSoFar = recorded().size();
    session.press("0");
    EXPECT_TRUE(eventually([&] { return contains(recorded(), stretch, heardSoFar); })) << "heard again";
#if !VELM_IS_SANITIZED
    EXPECT_TRUE(demo.isRunning());
    EXPECT_LT(demo.peakKilobytes(), 48 * 1024);
#endif
    session.press("Escape");
    EXPECT_EQ(demo.waitForExit(), 0);
}

TEST_F(SoundTest, ADeviceThatIsLostNeverStopsThePicture) {
    Child demo({VELM_PROGRAM}, withDevice());
    ASSERT_TRUE(eventually([this] { return !isSilent(recorded()); })) << demo.errors();
    pulseaudio->signal(9);
    session.movePointer(128, 128);
    const auto picture = [this] { return session.screen(0, 0, 256, 256); };
    for (int i = 0; i < 5; ++i) {
        const auto before = picture();
        EXPECT_TRUE(eventually([&] { return picture() != before; })) << "the picture stands still";
    }
    session.press("Escape");
    EXPECT_EQ(demo.waitForExit(), 0);
}

} // namespace
} // namespace velm::test

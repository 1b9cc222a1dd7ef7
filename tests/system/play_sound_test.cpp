// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The player on a real sound server: by its own protocol, through the stand-in for "/dev/dsp", and through
// the server's silence and death.
#include "sound_server.h"

#include <algorithm>
#include <csignal>

namespace velm::test {
namespace {

class PlaySoundTest : public SoundServer {
protected:
    /// A null sink that nobody has listened to sleeps for up to two seconds at a time; a recording shows that
    /// it has woken up.
    void waitForRecorder() {
        ASSERT_TRUE(eventually([this] { return recorded().size() > 5 * samplesPerSecond / 2; }));
    }

    /// The part of a sound's short pieces that a recording has; silent ones do not count.
    static double foundPart(const Sound& recording, const Sound& sound) {
        constexpr std::ptrdiff_t pieceLength = samplesPerSecond / 50;
        double pieces = 0;
        double found = 0;
        for (auto at = sound.begin(); sound.end() - at >= pieceLength; at += pieceLength) {
            const Sound piece(at, at + pieceLength);
            pieces += isSilent(piece) ? 0 : 1;
            found += !isSilent(piece) && contains(recording, piece, 0) ? 1 : 0;
        }
        return found / pieces;
    }

    static double loudSamples(const Sound& sound) {
        return static_cast<double>(sound.size()) -
               static_cast<double>(std::count(sound.begin(), sound.end(), std::int16_t{0}));
    }

    [[nodiscard]] bool isPictureMoving() const {
        const auto picture = [this] { return session.screen(192, 112, 256, 256); };
        const auto before = picture();
        return eventually([&] { return picture() != before; }, 10);
    }
};

TEST_F(PlaySoundTest, WhatIsHeardIsWhatTheCaptureHas) {
    waitForRecorder();
    Child player({VELM_PLAYER, "schedule", "--scale", "1", "--gain", "0", "--frames", "220"}, withDisplay());
    ASSERT_EQ(player.waitForExit(60), 0) << player.errors();
    EXPECT_EQ(player.output(), "sound: pulseaudio\n");
    EXPECT_EQ(player.errors(), "");
    const Sound heard = recorded();
    const Sound expected = captured(200); // the end of the sound goes down with the program
    ASSERT_GT(expected.size(), 5 * samplesPerSecond);
    // A machine that stands still for a moment lets the server miss a beat: a silence amid a note.
    EXPECT_GT(foundPart(heard, expected), 0.75);
    EXPECT_NEAR(loudSamples(heard) / loudSamples(expected), 1, 0.4) << "half the notes, or each twice";

    // The same through the other driver, at half the volume.
    Child half({VELM_PLAYER, "schedule", "--scale", "1", "--volume", "50", "--gain", "0", "--sound", "oss"},
               withDevice());
    Sound stretch = loudestWindow(captured(60));
    for (std::int16_t& value : stretch) {
        value /= 2;
    }
    EXPECT_TRUE(eventually([&] { return contains(recorded(), stretch, heard.size()); })) << half.errors();
    EXPECT_EQ(half.output(), "sound: oss\n");
}

TEST_F(PlaySoundTest, AServerThatHangsOrDiesNeverStopsThePictureAndTheSoundReturns) {
    waitForRecorder();
    constexpr int movesToSee = 30; // a second's
    Child player({VELM_PLAYER, "schedule", "--scale", "1"}, withDisplay());
    ASSERT_TRUE(eventually([this] { return !isSilent(recorded()); })) << player.errors();
    pulseaudio->signal(SIGSTOP);
    for (int i = 0; i < movesToSee; ++i) {
        EXPECT_TRUE(isPictureMoving()) << "while the server hangs";
    }
    pulseaudio->signal(SIGKILL);
    for (int i = 0; i < movesToSee; ++i) {
        EXPECT_TRUE(isPictureMoving()) << "after the server's death";
    }
    startServer();
    EXPECT_TRUE(eventually([this] { return !isSilent(recorded()); })) << "the sound returns";
    session.movePointer(320, 240);
    session.press("Escape");
    EXPECT_EQ(player.waitForExit(), 0);
    EXPECT_EQ(player.errors(), "");
    // The server may come back just after it was asked for, and before ALSA is, which then plays through it.
    EXPECT_TRUE(player.output().starts_with("sound: pulseaudio\n")) << player.output();
}

TEST_F(PlaySoundTest, AServerThatHangsAtTheStartCostsOnlySilence) {
    waitForRecorder();
    pulseaudio->signal(SIGSTOP);
    Child player({VELM_PLAYER, "--scale", "1"}, withDisplay());
    ASSERT_TRUE(eventually([this] { return session.findDemo() != 0; })) << player.errors();
    // The first second shows the logo, and then the demo moves.
    ASSERT_TRUE(eventually([this] { return isPictureMoving(); }));
    EXPECT_EQ(player.output(), "") << "no picture waits for the sound";
    pulseaudio->signal(SIGCONT);
    EXPECT_TRUE(eventually([this] { return !isSilent(recorded()); })) << "the sound comes when it can";
    EXPECT_EQ(player.output(), "sound: pulseaudio\n");
    session.press("Escape");
    EXPECT_EQ(player.waitForExit(), 0);
    EXPECT_EQ(player.errors(), "");
}

} // namespace
} // namespace velm::test

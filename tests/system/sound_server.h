// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A program on a real X server and a real sound server.
//
//     TEST_F(SoundServer, IsHeard) {
//         Child demo({VELM_PROGRAM}, withDisplay());
//         ...
//         EXPECT_TRUE(contains(recorded(), stretch, 0));
//     }
#pragma once

#include "pulse_server.h"
#include "x11_session.h"

namespace velm::test {

class SoundServer : public testing::Test, protected PulseServer {
protected:
    void SetUp() override { startServer(); }

    /// The environment of a program that plays through the server.
    [[nodiscard]] Environment withDisplay() const;
    /// The same with the server's stand-in for "/dev/dsp".
    [[nodiscard]] Environment withDevice() const;

    /// What the demo hands to its device in the first frames, from the capture tool.
    [[nodiscard]] Sound captured(int frames) const;

    XServer server{"24"};
    Session session{server.display()};
};

} // namespace velm::test

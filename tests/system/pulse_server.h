// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A real sound server with a null sink, and a recording of what the sink plays.
//
//     PulseServer server;
//     server.startServer();
//     Child player({"paplay", "bar.wav"}, server.pulse);
//     EXPECT_TRUE(contains(server.recorded(), stretch, 0));
#pragma once

#include "process.h"

namespace velm::test {

using Sound = std::vector<std::int16_t>;

inline constexpr std::size_t samplesPerSecond = 44100;

/// The samples of a file behind its header.
Sound readSound(const std::string& path, std::size_t headerBytes);

/// The loudest stretch of a sound, of less than a hundredth of a second.
Sound loudestWindow(const Sound& sound);

/// True when it holds nothing but zeros.
bool isSilent(const Sound& sound);

/// True when the stretch stands in the recording from an index on, give or take the rounding of a server's
/// volume.
bool contains(const Sound& recording, const Sound& stretch, std::size_t from);

class PulseServer {
public:
    /// Starts the server, or another one in its place, and a recorder.
    void startServer();

    /// What the recorder of the running server has heard so far.
    [[nodiscard]] Sound recorded() const { return readSound(recording, 0); }

    const TemporaryFolder folder;
    const std::string recording = folder / "recording.raw";
    /// What a program needs to find the server.
    Environment pulse = {{"PULSE_SERVER", "unix:" + folder / "native"},
                         {"HOME", folder.path},
                         {"XDG_RUNTIME_DIR", folder.path},
                         {"PULSE_COOKIE", folder / "cookie"}};
    std::unique_ptr<Child> pulseaudio;
    std::unique_ptr<Child> recorder;
};

} // namespace velm::test

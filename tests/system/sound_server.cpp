// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "sound_server.h"

namespace velm::test {

Environment SoundServer::withDisplay() const {
    Environment environment = pulse;
    environment.emplace_back("DISPLAY", server.display());
    return environment;
}

Environment SoundServer::withDevice() const {
    Environment environment = withDisplay();
    environment.emplace_back("LD_PRELOAD", VELM_PULSE_DSP);
    return environment;
}

Sound SoundServer::captured(int frames) const {
    const std::string wav = folder / "captured.wav";
    EXPECT_EQ(runTool({VELM_CAPTURE, "--frames", std::to_string(frames), "--quiet", "--audio", wav}, {}), 0);
    constexpr std::size_t headerBytes = 44;
    return readSound(wav, headerBytes);
}

} // namespace velm::test

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "pulse_server.h"

#include "foundation/byte_order.h"

namespace velm::test {

namespace {

constexpr std::size_t windowLength = 400;

double energy(const std::int16_t* begin) {
    return std::inner_product(begin, begin + windowLength, begin, 0.0);
}

} // namespace

Sound readSound(const std::string& path, std::size_t headerBytes) {
    const std::string bytes = contents(path);
    const std::size_t begin = std::min(headerBytes, bytes.size());
    Sound sound((bytes.size() - begin) / 2);
    for (std::size_t i = 0; i < sound.size(); ++i) {
        std::memcpy(&sound[i], &bytes[begin + 2 * i], 2);
        sound[i] = lowByteFirst(sound[i]);
    }
    return sound;
}

Sound loudestWindow(const Sound& sound) {
    std::size_t best = 0;
    for (std::size_t at = 0; at + windowLength < sound.size(); at += windowLength / 4) {
        if (energy(&sound[at]) > energy(&sound[best])) {
            best = at;
        }
    }
    const auto begin = sound.begin() + static_cast<std::ptrdiff_t>(best);
    return {begin, begin + windowLength};
}

bool isSilent(const Sound& sound) {
    return std::all_of(sound.begin(), sound.end(), [](std::int16_t s) { return s == 0; });
}

bool contains(const Sound& recording, const Sound& stretch, std::size_t from) {
    constexpr int tolerance = 1;
    const auto near = [](std::int16_t a, std::int16_t b) { return std::abs(a - b) <= tolerance; };
    const auto begin = recording.begin() + static_cast<std::ptrdiff_t>(std::min(from, recording.size()));
    return std::search(begin, recording.end(), stretch.begin(), stretch.end(), near) != recording.end();
}

void PulseServer::startServer() {
    recorder.reset();
    pulseaudio.reset();
    std::filesystem::remove(folder / "native");
    pulseaudio = std::make_unique<Child>(
        std::vector<std::string>{
            "pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
            "--load=module-null-sink sink_name=velm rate=44100 format=s16le channels=1",
            "--load=module-native-protocol-unix auth-anonymous=1 socket=" + folder / "native"},
        Environment{{"HOME", folder.path}, {"XDG_RUNTIME_DIR", folder.path}});
    ASSERT_TRUE(eventually([this] { return runTool({"pactl", "info"}, pulse) == 0; }));
    recorder = std::make_unique<Child>(
        std::vector<std::string>{"sh", "-c",
                                 "exec parec --raw -d velm.monitor --rate=44100 --channels=1"
                                 " --format=s16le --latency-msec=20 > " +
                                     recording},
        pulse);
}

} // namespace velm::test

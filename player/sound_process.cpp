// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "sound_process.h"

#include "audio/sample.h"
#include "platform/clock.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velm {

namespace {

constexpr std::int64_t microsPerSecond = 1000000;
constexpr std::int64_t patienceMicros = 3 * microsPerSecond;
constexpr std::int64_t mostPlayedMicros = microsPerSecond / 10; ///< without telling; more, and it hangs
constexpr std::int64_t retryMicros = microsPerSecond;
constexpr std::int64_t mostWaiting = SAMPLE_rate / 4;
constexpr std::size_t mostBlockSamples = 4096;

std::int64_t microsOf(std::int64_t samples) {
    return samples * microsPerSecond / SAMPLE_rate;
}

/// What the process tells the player.
struct News {
    std::int32_t taken;  ///< samples that the device has just taken; 0 says that it is open
    std::int32_t lack;   ///< samples that it lacks now
    std::int64_t micros; ///< the time
};

bool tell(int line, std::int32_t taken, std::int32_t lack) {
    const News news{taken, lack, CLOCK_now()};
    return ::send(line, &news, sizeof news, MSG_NOSIGNAL) == sizeof news;
}

/// Takes a block from the line to the device; false when one of them is lost.
bool passOn(const SoundDriver& driver, int line) {
    std::int16_t block[mostBlockSamples];
    const ssize_t bytes = recv(line, block, sizeof block, 0);
    const std::size_t samples = static_cast<std::size_t>(std::max<ssize_t>(bytes, 0)) / sizeof block[0];
    const auto lack = samples > 0 ? driver.write({block, samples}) : std::nullopt;
    return lack && tell(line, static_cast<std::int32_t>(samples), *lack);
}

/// All that the process does. It has nothing of the player's but the line: no display, no terminal for a
/// library to complain on.
[[noreturn]] void playUntilTheLineEnds(const SoundDriver& driver, int playersLine) {
    constexpr int line = 3;
    const int nothing = ::open("/dev/null", O_RDWR);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        dup2(nothing, standard);
    }
    dup2(playersLine, line);
    close_range(line + 1, ~0U, 0);
    std::signal(SIGPIPE, SIG_IGN);
    bool plays = driver.open() && tell(line, 0, 0);
    while (plays) {
        constexpr int idleMillis = 10;
        pollfd input{line, POLLIN, 0};
        plays = poll(&input, 1, idleMillis) == 0 ? driver.idle() : passOn(driver, line);
    }
    _exit(1);
}

} // namespace

bool SoundProcess::start(const SoundDriver& soundDriver) {
    driver = &soundDriver;
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0) {
        return false;
    }
    const pid_t parent = getpid();
    process = fork();
    if (process == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL); // however the player ends, the sound ends with it
        if (getppid() != parent) {
            _exit(1);
        }
        playUntilTheLineEnds(*driver, ends[1]);
    }
    close(ends[1]);
    line = ends[0];
    open = false;
    waiting = 0;
    lack = 0;
    heardMicros = toldMicros = CLOCK_now();
    if (process < 0) {
        lose();
    }
    return process >= 0;
}

bool SoundProcess::waitUntilOpen() {
    while (line >= 0 && !open) {
        pollfd answer{line, POLLIN, 0};
        const std::int64_t left = patienceMicros - (CLOCK_now() - heardMicros);
        constexpr std::int64_t microsPerMilli = 1000;
        poll(&answer, 1, static_cast<int>(std::max<std::int64_t>(left / microsPerMilli, 0)));
        watch();
    }
    return open;
}

bool SoundProcess::send(std::span<const std::int16_t> block) {
    if (line < 0 && CLOCK_now() >= startMicros) {
        start(*driver);
    }
    watch();
    const auto samples = static_cast<std::int64_t>(block.size());
    if (!open || block.empty() || waiting + samples > mostWaiting) {
        return false;
    }
    if (waiting == 0) {
        heardMicros = CLOCK_now(); // it had nothing to tell before
    }
    if (::send(line, block.data(), block.size_bytes(), MSG_DONTWAIT | MSG_NOSIGNAL) < 0) {
        return false;
    }
    waiting += samples;
    return true;
}

std::int64_t SoundProcess::aheadMicros() const {
    // It tells of whole blocks; in between, the device goes on playing.
    const std::int64_t played = std::min(CLOCK_now() - toldMicros, mostPlayedMicros);
    return microsOf(waiting - lack) - played;
}

/// Reads what the process has told.
void SoundProcess::hear() {
    for (;;) {
        News news{};
        const ssize_t bytes = recv(line, &news, sizeof news, MSG_DONTWAIT);
        if (bytes != sizeof news) {
            if (bytes == 0 || (bytes < 0 && errno != EAGAIN && errno != EINTR)) {
                lose();
            }
            return;
        }
        open = true;
        waiting -= news.taken;
        lack = news.lack;
        toldMicros = news.micros;
        heardMicros = CLOCK_now();
    }
}

/// Hears the process, and gives up one that owes an answer for too long.
void SoundProcess::watch() {
    if (line < 0) {
        return;
    }
    hear();
    const bool owes = !open || waiting > 0;
    if (line >= 0 && owes && CLOCK_now() - heardMicros >= patienceMicros) {
        lose();
    }
}

void SoundProcess::lose() {
    end();
    startMicros = CLOCK_now() + retryMicros;
}

void SoundProcess::end() {
    if (line >= 0) {
        close(line);
        line = -1;
    }
    if (process > 0) {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
        process = -1;
    }
    open = false;
    waiting = 0;
}

} // namespace velm

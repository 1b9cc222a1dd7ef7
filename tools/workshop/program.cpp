// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "workshop/program.h"

#include "platform/clock.h"
#include "workshop/wait/wait.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

namespace velm {

namespace {

/// Microseconds that a frame may take of a processor, and in all: on a busy machine a version that works well
/// may get few.
constexpr std::int64_t longestWork = 2000000;
constexpr std::int64_t longestWait = 10000000;
constexpr int cannotStart = 127;
constexpr int signalBase = 128; ///< statuses from here on are signals, as in a shell

/// In the new process: only what may be called between fork and exec.
[[noreturn]] void become(char** arguments, int log, int channel) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    setpgid(0, 0);
    const int nothing = open("/dev/null", O_RDONLY);
    dup2(nothing, STDIN_FILENO);
    if (log >= 0) {
        dup2(log, STDOUT_FILENO);
        dup2(log, STDERR_FILENO);
    }
    if (channel >= 0) {
        fcntl(channel, F_SETFD, 0);
    }
    execvp(arguments[0], arguments);
    _exit(cannotStart);
}

int makeMemory() {
    const int descriptor = memfd_create("velm4030-live", MFD_CLOEXEC);
    if (descriptor < 0 || ftruncate(descriptor, sizeof(Channel)) != 0) {
        std::perror("velm4030-live");
        std::exit(EXIT_FAILURE);
    }
    return descriptor;
}

Channel* mapChannel(int descriptor, std::int32_t frame) {
    void* const memory = mmap(nullptr, sizeof(Channel), PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    if (memory == MAP_FAILED) {
        std::perror("velm4030-live");
        std::exit(EXIT_FAILURE);
    }
    auto* const channel = static_cast<Channel*>(memory);
    sem_init(&channel->asked, 1, 0);
    sem_init(&channel->drawn, 1, 0);
    channel->frame = frame;
    return channel;
}

} // namespace

Process::Process(const std::vector<std::string>& arguments, int log, int channel) {
    std::vector<char*> words;
    words.reserve(arguments.size() + 1);
    for (const std::string& argument : arguments) {
        words.push_back(const_cast<char*>(argument.c_str()));
    }
    words.push_back(nullptr);
    if (channel >= 0) {
        setenv(channelVariable, std::to_string(channel).c_str(), 1);
    }
    group = fork();
    if (group == 0) {
        become(words.data(), log, channel);
    }
    if (group < 0) {
        ended = cannotStart;
    } else {
        setpgid(group, group);
    }
}

Process::~Process() {
    if (group > 0 && !ended) {
        kill(-group, SIGKILL);
        while (waitpid(group, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
}

std::int64_t Process::worked() const {
    clockid_t clock{};
    timespec time{};
    if (clock_getcpuclockid(group, &clock) != 0 || clock_gettime(clock, &time) != 0) {
        return 0;
    }
    return std::int64_t{time.tv_sec} * 1000000 + time.tv_nsec / 1000;
}

bool Process::hasEnded() {
    int status = 0;
    if (!ended && waitpid(group, &status, WNOHANG) == group) {
        ended = WIFSIGNALED(status) ? signalBase + WTERMSIG(status) : WEXITSTATUS(status);
        kill(-group, SIGKILL); // whatever it has left
    }
    return ended.has_value();
}

Program::Program(const std::string& path, std::int32_t frame)
    : descriptor(makeMemory()), channel(mapChannel(descriptor, frame)), askedAt(CLOCK_now()),
      process({path}, -1, descriptor) {
    close(descriptor);
}

Program::~Program() {
    munmap(channel, sizeof(Channel));
}

bool Program::hasDrawn(std::int64_t millis) {
    return awaitPost(channel->drawn, millis);
}

void Program::ask(std::int32_t frame) {
    channel->frame = frame;
    channel->samples = 0;
    askedAt = CLOCK_now();
    workedBefore = process.worked();
    sem_post(&channel->asked);
}

std::string Program::failure() {
    if (process.hasEnded()) {
        const int status = process.status();
        return status > signalBase ? std::string("crashed: ") + strsignal(status - signalBase)
                                   : "ended with status " + std::to_string(status);
    }
    if (process.worked() - workedBefore > longestWork) {
        return "gave no frame in two seconds of work";
    }
    return CLOCK_now() - askedAt > longestWait ? "gave no frame for ten seconds" : "";
}

} // namespace velm

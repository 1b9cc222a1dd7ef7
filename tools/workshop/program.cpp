// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "workshop/program.h"

#include "platform/clock.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
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

Program::Program(const std::string& path, std::int32_t frame, bool hasSound)
    : window(frame, hasSound), process({path}, -1, window.descriptor()), waitsSince(CLOCK_now()) {}

void Program::ask(std::int32_t frame) {
    beginWait();
    window.ask(frame);
}

void Program::beginWait() {
    waitsSince = CLOCK_now();
    workedBefore = process.worked();
}

std::string Program::failure() {
    if (process.hasEnded()) {
        const int status = process.status();
        return status > signalBase ? std::string("crashed: ") + strsignal(status - signalBase)
                                   : "ended with status " + std::to_string(status);
    }
    if (window.hasRested()) {
        beginWait();
    }
    if (process.worked() - workedBefore > longestWork) {
        return "gave no frame in two seconds of work";
    }
    return CLOCK_now() - waitsSince > longestWait ? "gave no frame for ten seconds" : "";
}

} // namespace velm

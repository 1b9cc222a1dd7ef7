// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/ffmpeg.h"

#include "capture/signals.h"

#include <cerrno>
#include <fcntl.h>
#include <iterator>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace velm {

namespace {

/// Starts a program with `input` as its standard input: 0 or an error's number.
int spawn(pid_t& child, std::vector<std::string> words, int input, const std::vector<int>& descriptors) {
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
    for (const int descriptor : descriptors) {
        // Onto itself: it stays open in the child.
        posix_spawn_file_actions_adddup2(&actions, descriptor, descriptor);
    }
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    const int error =
        posix_spawnp(&child, arguments.front(), &actions, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return error;
}

} // namespace

Ffmpeg::~Ffmpeg() {
    if (child > 0) {
        kill(child, SIGKILL);
        wait();
    }
}

bool Ffmpeg::start(const std::string& arguments, const std::vector<int>& descriptors) {
    std::istringstream words("ffmpeg -nostdin -loglevel quiet -xerror -y " + arguments);
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        return false;
    }
    const HeldSignals held;
    const int error = spawn(child, {std::istream_iterator<std::string>(words), {}}, ends[0], descriptors);
    close(ends[0]);
    if (error != 0) {
        child = 0;
        close(ends[1]);
        errno = error;
        return false;
    }
    killOnSignal(child);
    input = fdopen(ends[1], "wb");
    return true;
}

bool Ffmpeg::feed(std::span<const std::byte> bytes) {
    return std::fwrite(bytes.data(), 1, bytes.size(), input) == bytes.size();
}

bool Ffmpeg::wait() {
    std::fclose(input);
    int status = -1;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    killOnSignal(0);
    child = 0;
    return status == 0;
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "workshop/window_side.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace velm {

namespace {

void leaveIf(bool hasFailed) {
    if (hasFailed) {
        std::perror("velm4030-live");
        std::exit(EXIT_FAILURE);
    }
}

int makeMemory() {
    const int file = memfd_create("velm4030-live", MFD_CLOEXEC);
    leaveIf(file < 0 || ftruncate(file, sizeof(Channel)) != 0);
    return file;
}

Channel* makeChannel(int file) {
    void* const memory = mmap(nullptr, sizeof(Channel), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    leaveIf(memory == MAP_FAILED);
    return new (memory) Channel{};
}

} // namespace

WindowSide::WindowSide(std::int32_t frame, bool hasSound) : file(makeMemory()), channel(makeChannel(file)) {
    channel->frame = frame;
    channel->hasSound = hasSound ? 1 : 0;
}

WindowSide::~WindowSide() {
    munmap(channel, sizeof(Channel));
    close(file);
}

void WindowSide::ask(std::int32_t frame) {
    channel->frame = frame;
    channel->asked.ring();
}

void WindowSide::press(std::string_view text, std::int32_t keycode) {
    Channel::Key key{.text = "", .keycode = keycode};
    text.copy(key.text, sizeof key.text - 1);
    channel->keys.push({&key, 1});
    channel->typed.ring();
}

void WindowSide::point(const Channel::Pointer& now) {
    if (now != pointed && channel->pointers.push({&now, 1}) > 0) {
        pointed = now;
    }
}

std::size_t WindowSide::passSound(std::size_t most,
                                  const std::function<bool(std::span<const std::int16_t>)>& device) {
    std::array<std::int16_t, decltype(channel->sound)::capacity> samples;
    const std::size_t taken = channel->sound.take(std::span(samples).first(std::min(most, samples.size())));
    if (taken > 0 && !device(std::span(samples).first(taken))) {
        channel->sound.drop();
    }
    return taken;
}

bool WindowSide::hasRested() {
    const std::uint32_t rests = channel->rests.load(std::memory_order_relaxed);
    return std::exchange(restsSeen, rests) != rests;
}

} // namespace velm

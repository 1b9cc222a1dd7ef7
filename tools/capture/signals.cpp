// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/signals.h"

#include <climits>
#include <cstring>
#include <unistd.h>

namespace velm {

namespace {

constexpr int deadly[] = {SIGINT, SIGQUIT, SIGTERM, SIGHUP};

/// A handler may not allocate, so all that it needs lies here. An output has one file at a time, and there
/// are five.
struct Slot {
    volatile std::sig_atomic_t taken = 0;
    char path[PATH_MAX] = "";
};
Slot slots[8];

static_assert(sizeof(std::sig_atomic_t) >= sizeof(pid_t));
volatile std::sig_atomic_t workingChild = 0;

sigset_t deadlySet() {
    sigset_t set;
    sigemptyset(&set);
    for (const int number : deadly) {
        sigaddset(&set, number);
    }
    return set;
}

void cleanUp(int number) {
    for (const Slot& slot : slots) {
        if (slot.taken != 0) {
            unlink(slot.path);
        }
    }
    if (workingChild > 0) {
        kill(workingChild, SIGKILL);
    }
    // The default action stands again; it comes when this handler returns.
    std::raise(number);
}

} // namespace

void cleanUpOnSignals() {
    struct sigaction action {};
    action.sa_handler = cleanUp;
    action.sa_mask = deadlySet();
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int number : deadly) {
        struct sigaction before {};
        sigaction(number, nullptr, &before);
        if (before.sa_handler != SIG_IGN) {
            sigaction(number, &action, nullptr);
        }
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

HeldSignals::HeldSignals() {
    const sigset_t set = deadlySet();
    sigprocmask(SIG_BLOCK, &set, &before);
}

HeldSignals::~HeldSignals() {
    sigprocmask(SIG_SETMASK, &before, nullptr);
}

int removeOnSignal(const std::string& path) {
    for (int i = 0; i < static_cast<int>(std::size(slots)); ++i) {
        if (slots[i].taken == 0 && path.size() < sizeof slots[i].path) {
            std::memcpy(slots[i].path, path.c_str(), path.size() + 1);
            slots[i].taken = 1;
            return i;
        }
    }
    return -1;
}

void keepOnSignal(int slot) {
    if (slot >= 0) {
        slots[slot].taken = 0;
    }
}

void killOnSignal(pid_t child) {
    workingChild = child;
}

} // namespace velm

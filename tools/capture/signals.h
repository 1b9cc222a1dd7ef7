// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What a signal that ends the process leaves behind: no half-written file and no working child.
//
//     cleanUpOnSignals();
//     const int slot = removeOnSignal(name);
//     keepOnSignal(slot); // it has been removed, or has got its real name
#pragma once

#include <csignal>
#include <string>
#include <sys/types.h>

namespace velm {

/// From now on Ctrl-C, Ctrl-\, TERM and HUP clean up before the process dies by them, unless they are
/// ignored. A reader that leaves and a file that grows too large become failures of the write.
void cleanUpOnSignals();

/// Holds these signals back for as long as it lives.
class HeldSignals {
public:
    HeldSignals();
    ~HeldSignals();
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;

private:
    sigset_t before{};
};

/// A signal removes this file. Gives the slot to free again; all of them taken, -1.
int removeOnSignal(const std::string& path);
void keepOnSignal(int slot);

/// A signal kills this child; 0 for none.
void killOnSignal(pid_t child);

} // namespace velm

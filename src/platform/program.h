// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What a machine calls the program that runs: the demo, unless it says otherwise before the window opens. A
// program that KIT_new opens the window for has the name of its file, if it has not said its name.
//
//     programNames = {"RINGS", "rings"};
#pragma once

namespace velm {

struct ProgramNames {
    const char* title = "VELM4030"; ///< of its window, and the window's class
    const char* name = nullptr; ///< what it says begins with it; nullptr: that of the demo on this machine
};

inline ProgramNames programNames;

/// The program's name, where the demo's is `demoName`.
inline const char* programNameOr(const char* demoName) {
    return programNames.name != nullptr ? programNames.name : demoName;
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The sources that velm4030-live plays: when one of them is saved, and how they become a program.
//
//     Workshop workshop(sources, prefixOfProgram());
//     if (workshop.step() && !workshop.program().empty()) { stage.bringOn(workshop.program(), *kit); }
#pragma once

#include "workshop/program.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace velm {

/// Tells of files in the folders of some sources that were written.
class Watch {
public:
    explicit Watch(const std::vector<std::string>& sources);
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    /// True when a C++ source or header was saved since the last call.
    [[nodiscard]] bool hasSaved() const;

private:
    int descriptor;
};

/// Compiles the sources beside the frames, anew whenever one is saved; a compilation that goes on then is
/// given up.
class Workshop {
public:
    /// The library is in `prefix`.
    Workshop(std::vector<std::string> sourceFiles, std::filesystem::path prefix);
    ~Workshop();
    Workshop(const Workshop&) = delete;
    Workshop& operator=(const Workshop&) = delete;

    /// Looks for saved files and for the end of a compilation. True when one has ended.
    bool step();

    /// The program that the last compilation has made, or "" where it failed.
    [[nodiscard]] const std::string& program() const { return made; }
    /// What the compiler has said.
    [[nodiscard]] const std::string& said() const { return log; }
    /// CLOCK_now() when the compiled sources were found saved.
    [[nodiscard]] std::int64_t savedAt() const { return saved; }

private:
    void compile();
    void forget(int number) const;

    std::vector<std::string> sources;
    std::filesystem::path kit;
    std::filesystem::path folder; ///< a temporary one, for the programs and the log
    Watch watch;
    std::unique_ptr<Process> compiler;
    std::string made;
    std::string log;
    std::int64_t saved = 0;
    int version = 0;  ///< of the last compilation, from 1
    int finished = 0; ///< the last one that has ended
};

/// The folder in whose bin folder this program is.
std::filesystem::path prefixOfProgram();

/// The line and the text of the first error in what a compiler says, "12: expected ';'"; "" without one.
std::string firstError(const std::string& said);

} // namespace velm

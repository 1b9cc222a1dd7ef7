// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A file that gets its name only once it is whole.
//
//     OutputFile file("frames.raw"); // "-" is standard output
//     file.write(words);
//     file.finish();
#pragma once

#include <cstdint>
#include <cstdio>
#include <span>
#include <string>

namespace velm {

/// Every failure is one line on standard error and the end of the process with status 1; a closed pipe ends
/// it without a word and with status 0. Until finish() the content stands under the name with ".part" behind
/// it, which no failure leaves behind. What is no ordinary file (a device, a pipe) is written as it stands.
class OutputFile {
public:
    explicit OutputFile(std::string finalPath);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void write(std::span<const std::byte> bytes);

    /// Writes over the first bytes of an ordinary file.
    void rewriteStart(std::span<const std::byte> bytes);

    /// Flushes the content and gives the file its name.
    void finish();

private:
    [[noreturn]] void fail() const;

    std::string path;     ///< as it was asked for
    std::string partPath; ///< "" for what is written as it stands
    std::FILE* stream = nullptr;
};

/// A file that must not outlive a failure of the process.
void watchPart(const std::string& path);

/// Removes every watched file that is still there, prints "velm4030-capture: " and the line, and ends the
/// process with status 1.
[[noreturn]] void giveUp(const std::string& line);

} // namespace velm

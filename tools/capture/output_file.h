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
/// it.
class OutputFile {
public:
    explicit OutputFile(std::string finalPath);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void write(std::span<const std::byte> bytes);

    /// Writes over the first bytes of the file; not for standard output.
    void rewriteStart(std::span<const std::byte> bytes);

    /// Flushes the content and gives the file its name.
    void finish();

private:
    [[noreturn]] void fail() const;

    std::string path;
    std::string partPath;
    std::FILE* stream = nullptr;
};

} // namespace velm

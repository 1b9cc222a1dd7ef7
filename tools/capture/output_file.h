// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A stream of bytes into what the user named: a file, which gets its name once it is whole, or a device, a
// pipe or standard output, written as it stands.
//
//     OutputFile file("frames.raw"); // "-" is standard output
//     file.write(words);
//     file.finish();
#pragma once

#include "capture/output.h"
#include "capture/temporary_file.h"

#include <cstdio>
#include <optional>
#include <span>
#include <string>

namespace velm {

/// Every failure is one line on standard error; what is written afterwards is dropped.
class OutputFile {
public:
    explicit OutputFile(const std::string& path);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void write(std::span<const std::byte> bytes);

    /// Writes over the first bytes of what can be rewound.
    void rewriteStart(std::span<const std::byte> bytes);

    /// Flushes the content and gives the file its name.
    void finish();

    [[nodiscard]] OutputState state() const { return status; }
    [[nodiscard]] const std::string& name() const { return shownName; }

private:
    void fail();

    std::string shownName;
    std::optional<TemporaryFile> temporary; ///< for an ordinary file
    std::FILE* stream = nullptr;
    OutputState status = OutputState::open;
};

/// An output that is one such file.
class FileOutput : public Output {
public:
    explicit FileOutput(const std::string& path) : file(path) {}

    void finish(std::int64_t) override { file.finish(); }
    [[nodiscard]] OutputState state() const override { return file.state(); }
    [[nodiscard]] const std::string& name() const override { return file.name(); }

protected:
    OutputFile file;
};

} // namespace velm

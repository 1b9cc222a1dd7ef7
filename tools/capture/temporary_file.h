// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A file that gets its name only once it is whole. Until then it stands beside it under a name that nobody
// can foresee and that was nobody's before, and neither a failure nor a signal leaves it behind.
//
//     TemporaryFile file("frames.raw");
//     std::fwrite(words, 4, 65536, file.stream());
//     file.takeName();
#pragma once

#include <cstdio>
#include <string>

namespace velm {

class TemporaryFile {
public:
    /// Where the path is a link, the file that it leads to gets the content.
    explicit TemporaryFile(const std::string& path);
    /// Removes the file, unless it has got its name.
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// For writing; nullptr when it could not be made, and errno says why.
    [[nodiscard]] std::FILE* stream() const { return file; }

    /// The name by which this process and its children reach it, whatever it is called.
    [[nodiscard]] std::string descriptorPath() const;

    /// Removes the name at once: the file lives on for as long as somebody has it open.
    void becomeNameless();

    /// Completes the file and gives it its name, in place of one that is there: false, and errno, when that
    /// fails. It keeps the permissions of the file that it replaces.
    bool takeName();

private:
    void remove();

    std::string target; ///< the name that it will get
    std::string name;   ///< the one it has; "" for none
    int slot = -1;      ///< what a signal removes
    std::FILE* file = nullptr;
};

} // namespace velm

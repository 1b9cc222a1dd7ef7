// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What a path of the command line stands for, before anything is opened.
//
//     if (identityOf("d") == identityOf("./d")) { ... }
#pragma once

#include <filesystem>
#include <string>

namespace velm {

/// The path that links lead to, be it there or not; the path itself where it is no link.
std::filesystem::path linkTarget(const std::filesystem::path& path);

/// A name that is the same for all spellings of one file, link, folder or device. "-" is standard output.
std::string identityOf(const std::string& path);

/// It is a regular file, perhaps behind links, or nothing yet.
bool isOrdinary(const std::string& path);

/// Its start can be written again at the end: no pipe, no terminal.
bool canRewind(const std::string& path);

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "play/snapshot.h"

#include "png/png.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace velm {

namespace {

std::string variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

/// The value of a line such as XDG_PICTURES_DIR="$HOME/Pictures"; empty for any other line.
std::string folderIn(const std::string& line) {
    const std::string begin = "XDG_PICTURES_DIR=\"";
    const std::string home = "$HOME";
    const std::size_t end = line.rfind('"');
    if (line.compare(0, begin.size(), begin) != 0 || end < begin.size()) {
        return "";
    }
    const std::string value = line.substr(begin.size(), end - begin.size());
    return value.compare(0, home.size(), home) == 0 ? variable("HOME") + value.substr(home.size()) : value;
}

/// Writes a file that is not there yet; 0, or the reason why not.
int writeNew(const std::string& path, const std::string& bytes) {
    std::FILE* const file = std::fopen(path.c_str(), "wbx");
    if (file == nullptr) {
        return errno;
    }
    const bool whole = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    const int reason = std::fclose(file) == 0 && whole ? 0 : ENOSPC;
    if (reason != 0) {
        std::remove(path.c_str());
    }
    return reason;
}

} // namespace

std::string picturesFolder() {
    const std::filesystem::path own = variable("XDG_CONFIG_HOME");
    const std::filesystem::path config =
        own.empty() ? std::filesystem::path(variable("HOME")) / ".config" : own;
    std::ifstream file(config / "user-dirs.dirs");
    std::string folder;
    for (std::string line; std::getline(file, line);) {
        const std::string found = folderIn(line);
        folder = found.empty() ? folder : found;
    }
    std::error_code unknown;
    return std::filesystem::is_directory(folder, unknown) ? folder : ".";
}

std::string keepSnapshot(const IMG& frame) {
    const std::string bytes = pngOf(frame);
    const std::filesystem::path folder = picturesFolder();
    std::filesystem::path path;
    int reason = EEXIST;
    for (int number = 1; reason == EEXIST; ++number) {
        path = folder / ("velm4030-" + std::to_string(number) + ".png");
        reason = bytes.empty() ? ENOMEM : writeNew(path, bytes);
    }
    const std::string why = reason == 0 ? "" : std::string(": ") + std::strerror(reason);
    std::printf("picture: %s%s%s\n", reason == 0 ? "" : "cannot write ", path.c_str(), why.c_str());
    std::fflush(stdout);
    return reason == 0 ? "kept as " + path.filename().string() : "no picture: see terminal";
}

} // namespace velm

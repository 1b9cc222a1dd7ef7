// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/paths.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velm {

namespace fs = std::filesystem;

fs::path linkTarget(const fs::path& path) {
    constexpr int mostLinks = 40;
    std::error_code error;
    fs::path target = path;
    for (int i = 0; i < mostLinks && fs::is_symlink(target, error); ++i) {
        target = target.parent_path() / fs::read_symlink(target, error);
    }
    return target;
}

std::string identityOf(const std::string& path) {
    struct stat found {};
    const int missing = path == "-" ? fstat(STDOUT_FILENO, &found) : stat(path.c_str(), &found);
    if (missing == 0) {
        return std::to_string(found.st_dev) + ":" + std::to_string(found.st_ino);
    }
    std::error_code error;
    const fs::path target = fs::absolute(linkTarget(path), error);
    return fs::weakly_canonical(target, error).string();
}

bool isOrdinary(const std::string& path) {
    std::error_code error;
    return !fs::exists(path, error) || fs::is_regular_file(path, error);
}

bool canRewind(const std::string& path) {
    std::error_code error;
    if (fs::is_fifo(path, error) || fs::is_socket(path, error)) {
        return false;
    }
    if (!fs::is_character_file(path, error)) {
        return true;
    }
    const int device = open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    const bool seeks = device < 0 || lseek(device, 0, SEEK_CUR) >= 0;
    if (device >= 0) {
        close(device);
    }
    return seeks;
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/temporary_file.h"

#include "capture/paths.h"
#include "capture/signals.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velm {

namespace {

/// The permissions of the file that is replaced, or those of any new file.
mode_t permissionsFor(const std::string& target) {
    constexpr mode_t all = 0777;
    constexpr mode_t readAndWrite = 0666;
    struct stat before {};
    if (stat(target.c_str(), &before) == 0) {
        return before.st_mode & all;
    }
    const mode_t mask = umask(0);
    umask(mask);
    return readAndWrite & ~mask;
}

} // namespace

TemporaryFile::TemporaryFile(const std::string& path) : target(linkTarget(path).string()) {
    if (access(target.c_str(), W_OK) != 0 && errno != ENOENT) {
        return;
    }
    name = (linkTarget(path).parent_path() / ".velm4030-capture-XXXXXX").string();
    const HeldSignals held;
    const int descriptor = mkostemp(name.data(), O_CLOEXEC);
    if (descriptor < 0) {
        name.clear();
        return;
    }
    slot = removeOnSignal(name);
    file = fdopen(descriptor, "w+b");
}

TemporaryFile::~TemporaryFile() {
    if (file != nullptr) {
        std::fclose(file);
    }
    remove();
}

std::string TemporaryFile::descriptorPath() const {
    return "/dev/fd/" + std::to_string(fileno(file));
}

void TemporaryFile::becomeNameless() {
    remove();
}

bool TemporaryFile::takeName() {
    const bool permitted = fchmod(fileno(file), permissionsFor(target)) == 0;
    const bool closed = std::fclose(file) == 0;
    file = nullptr;
    if (!permitted || !closed || std::rename(name.c_str(), target.c_str()) != 0) {
        return false;
    }
    keepOnSignal(slot);
    name.clear();
    return true;
}

void TemporaryFile::remove() {
    if (!name.empty()) {
        unlink(name.c_str());
        keepOnSignal(slot);
        name.clear();
    }
}

} // namespace velm

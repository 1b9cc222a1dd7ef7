// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/output_file.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <vector>

namespace velm {

namespace {

std::vector<std::string>& watchedParts() {
    static std::vector<std::string> parts;
    return parts;
}

void removeParts() {
    for (const std::string& part : watchedParts()) {
        std::remove(part.c_str());
    }
}

/// Where the content is built up: beside the file that the path names in the end, or "" for a device or a
/// pipe.
std::string partOf(const std::string& path) {
    std::error_code error;
    if (std::filesystem::exists(path, error) && !std::filesystem::is_regular_file(path, error)) {
        return "";
    }
    // A link keeps pointing where it points, to a file that need not be there yet.
    constexpr int mostLinks = 40;
    std::filesystem::path target = path;
    for (int i = 0; i < mostLinks && std::filesystem::is_symlink(target, error); ++i) {
        target = target.parent_path() / std::filesystem::read_symlink(target, error);
    }
    return target.string() + ".part";
}

} // namespace

void watchPart(const std::string& path) {
    watchedParts().push_back(path);
}

void giveUp(const std::string& line) {
    removeParts();
    std::fprintf(stderr, "velm4030-capture: %s\n", line.c_str());
    std::_Exit(1);
}

OutputFile::OutputFile(std::string finalPath) : path(std::move(finalPath)) {
    if (path == "-") {
        stream = stdout;
        return;
    }
    partPath = partOf(path);
    stream = std::fopen(partPath.empty() ? path.c_str() : partPath.c_str(), "wb");
    if (stream == nullptr) {
        fail();
    }
    if (!partPath.empty()) {
        watchPart(partPath);
    }
}

OutputFile::~OutputFile() {
    if (stream != nullptr && stream != stdout) {
        std::fclose(stream);
        if (!partPath.empty()) {
            std::remove(partPath.c_str());
        }
    }
}

void OutputFile::write(std::span<const std::byte> bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), stream) != bytes.size()) {
        fail();
    }
}

void OutputFile::rewriteStart(std::span<const std::byte> bytes) {
    if (std::fseek(stream, 0, SEEK_SET) != 0) {
        fail();
    }
    write(bytes);
}

void OutputFile::finish() {
    if (std::fflush(stream) != 0) {
        fail();
    }
    if (stream == stdout) {
        return;
    }
    const bool closed = std::fclose(stream) == 0;
    stream = nullptr;
    const std::string target = partPath.substr(0, partPath.rfind(".part"));
    if (!closed || (!partPath.empty() && std::rename(partPath.c_str(), target.c_str()) != 0)) {
        fail();
    }
}

void OutputFile::fail() const {
    const int error = errno;
    if (error == EPIPE) {
        removeParts();
        std::_Exit(0);
    }
    giveUp("cannot write " + (path == "-" ? "standard output" : path) + ": " + std::strerror(error));
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/output_file.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace velm {

OutputFile::OutputFile(std::string finalPath) : path(std::move(finalPath)), partPath(path + ".part") {
    stream = path == "-" ? stdout : std::fopen(partPath.c_str(), "wb");
    if (stream == nullptr) {
        fail();
    }
}

OutputFile::~OutputFile() {
    if (stream != nullptr && stream != stdout) {
        std::fclose(stream);
        std::remove(partPath.c_str());
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
    if (!closed || std::rename(partPath.c_str(), path.c_str()) != 0) {
        fail();
    }
}

void OutputFile::fail() const {
    const int error = errno;
    if (path != "-") {
        std::remove(partPath.c_str());
    }
    if (error == EPIPE) {
        std::_Exit(0);
    }
    std::fprintf(stderr, "velm4030-capture: cannot write %s: %s\n",
                 path == "-" ? "standard output" : path.c_str(), std::strerror(error));
    std::_Exit(1);
}

} // namespace velm

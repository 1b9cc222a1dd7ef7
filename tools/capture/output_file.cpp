// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/output_file.h"

#include "capture/console.h"
#include "capture/paths.h"

#include <cerrno>
#include <cstring>

namespace velm {

OutputFile::OutputFile(const std::string& path) : shownName(path == "-" ? "standard output" : path) {
    if (path == "-") {
        stream = stdout;
    } else if (isOrdinary(path)) {
        stream = temporary.emplace(path).stream();
    } else {
        stream = std::fopen(path.c_str(), "wbe");
    }
    if (stream == nullptr) {
        fail();
    }
}

OutputFile::~OutputFile() {
    if (stream != nullptr && stream != stdout && !temporary) {
        std::fclose(stream);
    }
}

void OutputFile::write(std::span<const std::byte> bytes) {
    if (status == OutputState::open && std::fwrite(bytes.data(), 1, bytes.size(), stream) != bytes.size()) {
        fail();
    }
}

void OutputFile::rewriteStart(std::span<const std::byte> bytes) {
    if (status == OutputState::open && std::fseek(stream, 0, SEEK_SET) != 0) {
        fail();
    }
    write(bytes);
}

void OutputFile::finish() {
    if (status != OutputState::open) {
        return;
    }
    if (std::fflush(stream) != 0 || (temporary && !temporary->takeName())) {
        fail();
    } else {
        status = OutputState::whole;
    }
}

void OutputFile::fail() {
    const int error = errno;
    status = error == EPIPE ? OutputState::cut : OutputState::failed;
    if (status == OutputState::failed) {
        say("cannot write " + shownName + ": " + std::strerror(error));
    }
    if (temporary) {
        temporary.reset();
        stream = nullptr;
    }
}

} // namespace velm

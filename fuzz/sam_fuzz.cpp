// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Feeds the readers of sample files through a file in memory. The first two bytes choose reader, width and
// order.
#include "audio/sam.h"
#include "audio/sample.h"

#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace {

/// A new file in memory that holds the bytes.
int fileOf(const std::uint8_t* data, std::size_t size) {
    const int file = memfd_create("fuzz", 0);
    if (file < 0 || write(file, data, size) != static_cast<ssize_t>(size)) {
        std::abort();
    }
    return file;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    const int file = fileOf(data + 2, size - 2);
    velm::SAM* sam = velm::SAM_new();
    velm::SAM_setPath(sam, ("/proc/self/fd/" + std::to_string(file)).c_str());
    sam->depth = data[1] % 41;
    sam->endian = data[1] >= 128 ? 'l' : 'm';
    std::int32_t (*const readers[])(velm::SAM*) = {velm::SAM_load, velm::SAM_readSam, velm::SAM_readWave,
                                                   velm::SAM_readRaw};
    const std::int32_t isRead = readers[data[0] % 4](sam);
    // Capacity doubles from 32; a value takes a byte at least.
    if (sam->file != nullptr || (isRead != 0 && (sam->sample == nullptr ||
                                                 sam->sample->capacity > 32 + 2 * static_cast<int>(size)))) {
        std::abort();
    }
    velm::SAM_delete(&sam);
    close(file);
    return 0;
}

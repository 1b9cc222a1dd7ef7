// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/wav.h"

#include <bit>
#include <cstring>

namespace velm {

namespace {

static_assert(std::endian::native == std::endian::little, "the fields are stored as they stand");

struct Header {
    char riff[4] = {'R', 'I', 'F', 'F'};
    std::uint32_t riffBytes = 36;
    char wave[4] = {'W', 'A', 'V', 'E'};
    char fmt[4] = {'f', 'm', 't', ' '};
    std::uint32_t fmtBytes = 16;
    std::uint16_t format = 1; // PCM
    std::uint16_t channels = 1;
    std::uint32_t rate = 44100;
    std::uint32_t bytesPerSecond = 88200;
    std::uint16_t bytesPerSample = 2;
    std::uint16_t bits = 16;
    char data[4] = {'d', 'a', 't', 'a'};
    std::uint32_t dataBytes = 0;
};
static_assert(sizeof(Header) == 44);

} // namespace

std::span<const std::byte> wavHeader(std::uint32_t dataBytes) {
    static Header header;
    header.dataBytes = dataBytes;
    header.riffBytes = dataBytes + 36;
    return std::as_bytes(std::span(&header, 1));
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/wav_file.h"

#include <limits>
#include <string_view>

namespace velm {

namespace {

constexpr std::uint32_t plainBytes = 44;
constexpr std::uint32_t longBytes = 80;
constexpr std::uint32_t riffHead = 8; ///< what a RIFF size does not count
constexpr std::uint32_t seeBelow = std::numeric_limits<std::uint32_t>::max(); ///< the size is in ds64

/// A header that grows field by field, low byte first.
struct Fields {
    std::vector<std::byte> bytes;

    void name(std::string_view text) {
        for (const char c : text) {
            bytes.push_back(static_cast<std::byte>(c));
        }
    }

    void number(std::uint64_t value, int size) {
        for (int i = 0; i < size; ++i) {
            bytes.push_back(static_cast<std::byte>(value >> (8 * i)));
        }
    }
};

bool fitsRiff(std::uint64_t dataBytes, std::uint32_t headerBytes) {
    return dataBytes + headerBytes - riffHead < seeBelow;
}

void addFormat(Fields& header) {
    constexpr std::uint32_t rate = 44100;
    constexpr std::uint32_t bytesPerSample = 2;
    header.name("fmt ");
    header.number(16, 4);
    header.number(1, 2); // PCM
    header.number(1, 2); // mono
    header.number(rate, 4);
    header.number(std::uint64_t{rate} * bytesPerSample, 4);
    header.number(bytesPerSample, 2);
    header.number(std::uint64_t{8} * bytesPerSample, 2);
}

/// The sizes of 64 bits, or as much room for them.
void addSizes(Fields& header, std::uint64_t dataBytes, bool isUsed) {
    constexpr std::uint32_t chunkBytes = 28;
    header.name(isUsed ? "ds64" : "JUNK");
    header.number(chunkBytes, 4);
    header.number(isUsed ? dataBytes + longBytes - riffHead : 0, 8);
    header.number(isUsed ? dataBytes : 0, 8);
    header.number(isUsed ? dataBytes / 2 : 0, 8); // samples
    header.number(0, 4);                          // no sizes of other chunks
}

} // namespace

WavRoom wavRoomFor(std::uint64_t mostDataBytes) {
    return fitsRiff(mostDataBytes, plainBytes) ? WavRoom::plain : WavRoom::long64;
}

std::vector<std::byte> wavHeader(std::uint64_t dataBytes, WavRoom room) {
    const std::uint32_t headerBytes = room == WavRoom::plain ? plainBytes : longBytes;
    const bool isRiff = room == WavRoom::plain || fitsRiff(dataBytes, headerBytes);
    Fields header;
    header.name(isRiff ? "RIFF" : "RF64");
    header.number(isRiff ? dataBytes + headerBytes - riffHead : seeBelow, 4);
    header.name("WAVE");
    if (room == WavRoom::long64) {
        addSizes(header, dataBytes, !isRiff);
    }
    addFormat(header);
    header.name("data");
    header.number(isRiff ? dataBytes : seeBelow, 4);
    return header.bytes;
}

} // namespace velm

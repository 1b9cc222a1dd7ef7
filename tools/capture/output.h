// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// One thing that a capture writes. Each stands for itself: what happens to one is no matter to the others.
//
//     class Checksums : public Output { ... };
#pragma once

#include "image/img.h"

#include <cstdint>
#include <span>
#include <string>

namespace velm {

/// How an output fares.
enum class OutputState {
    open,
    whole,  ///< complete, and under its name
    failed, ///< has said so in one line, and left nothing behind
    cut,    ///< the reader of the pipe has left
};

/// A presentation.
struct Frame {
    std::uint32_t number; ///< the first is 1
    const IMG& img;
    std::span<const std::byte> bytes; ///< its words 0x00RRGGBB, low byte first
    std::int64_t micros;              ///< virtual time
};

/// A block that the sound device was handed.
struct Block {
    std::span<const std::int16_t> samples; ///< mono, 44100 per second
    std::int64_t micros;                   ///< virtual time
};

/// Nothing is handed to an output that is not open.
class Output {
public:
    virtual ~Output() = default;

    virtual void frame(const Frame&) {}
    virtual void sound(const Block&) {}

    /// Completes it, at a moment of virtual time.
    virtual void finish(std::int64_t micros) = 0;

    [[nodiscard]] virtual OutputState state() const = 0;

    /// As it is named to the user.
    [[nodiscard]] virtual const std::string& name() const = 0;
};

} // namespace velm

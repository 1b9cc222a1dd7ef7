// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/plasma.h"

#include "foundation/chance.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/sine.h"
#include "foundation/wrap.h"
#include "image/img.h"

namespace velm {

const IDENTITY PLASMA_identity = makeIdentity("PLASMA", "CODE", "20261121", "C", "ZENDORAK");
std::uint8_t PLASMA_verbose = 0;

namespace {

/// One of -most..-1 and 1..most; draws the size first, then the sign.
std::int32_t drawStep(std::int32_t most) {
    const std::int32_t size = chance() % most + 1;
    const std::int32_t sign = 2 * (chance() % 2) - 1;
    return sign * size;
}

/// A channel of the ring, 0..255: one wave around it, squared, so that more of it is dark than bright.
std::uint32_t channelAt(std::int32_t place, std::int32_t phase) {
    constexpr std::int32_t turn = SINE_tableLength / PLASMA_colourCount;
    const std::int32_t wave = (SINE_entry(place * turn + phase) >> 8) + 128;
    return static_cast<std::uint32_t>(wave * wave >> 8);
}

/// SINE_entry reaches 32766, so a wave bends the next one by half a turn either way.
constexpr std::int32_t bendShift = 6;
/// Three waves together reach 98298, so the ring is gone through three times from trough to crest.
constexpr std::int32_t heightShift = 8;

constexpr std::int32_t fastest = 2; ///< twice as fast, some seas flash more than three times a second
constexpr std::int32_t steepest = 4;

} // namespace

PLASMA* PLASMA_new() {
    PLASMA* plasma = newRecord<PLASMA>(PLASMA_error);
    if (plasma != nullptr) {
        PLASMA_randomize(plasma);
    }
    return plasma;
}

void PLASMA_randomize(PLASMA* plasma) {
    if (refused(plasma == nullptr, PLASMA_error)) {
        return;
    }
    for (PLASMA_WAVE& wave : plasma->waves) {
        wave.phase = chance() & SINE_tableMask;
        wave.speed = drawStep(fastest);
        wave.across = drawStep(steepest);
        wave.down = drawStep(steepest);
    }
    // Less than a third of a turn apart, the channels share a dark stretch of the ring.
    constexpr std::int32_t thirdTurn = SINE_tableLength / 3;
    const std::int32_t red = chance() % thirdTurn;
    const std::int32_t green = chance() % thirdTurn;
    const std::int32_t blue = chance() % thirdTurn;
    for (std::int32_t i = 0; i < PLASMA_colourCount; ++i) {
        plasma->colours[i] = channelAt(i, red) << 16 | channelAt(i, green) << 8 | channelAt(i, blue);
    }
}

void PLASMA_advance(PLASMA* plasma) {
    if (refused(plasma == nullptr, PLASMA_error)) {
        return;
    }
    for (PLASMA_WAVE& wave : plasma->waves) {
        wave.phase = wrapAdd(wave.phase, wave.speed) & SINE_tableMask;
    }
}

void PLASMA_draw(const PLASMA* plasma, IMG* target) {
    if (refused(plasma == nullptr || !hasPixels(target), PLASMA_error)) {
        return;
    }
    std::uint32_t* pixel = target->pixels;
    for (std::int32_t y = 0; y < target->height; ++y) {
        std::int32_t angles[PLASMA_waveCount];
        for (std::int32_t i = 0; i < PLASMA_waveCount; ++i) {
            angles[i] = wrapAdd(plasma->waves[i].phase, wrapMul(plasma->waves[i].down, y));
        }
        for (std::int32_t x = 0; x < target->width; ++x, ++pixel) {
            std::int32_t height = 0;
            std::int32_t sum = 0;
            for (std::int32_t i = 0; i < PLASMA_waveCount; ++i) {
                height = SINE_entry(wrapAdd(angles[i], height >> bendShift));
                sum += height;
                angles[i] = wrapAdd(angles[i], plasma->waves[i].across);
            }
            *pixel = plasma->colours[(sum >> heightShift) & (PLASMA_colourCount - 1)];
        }
    }
}

void PLASMA_delete(PLASMA** handle) {
    deleteRecord(handle, PLASMA_error);
}

void PLASMA_error() {
    reportLine(PLASMA_verbose, "PLASMA error");
}

} // namespace velm

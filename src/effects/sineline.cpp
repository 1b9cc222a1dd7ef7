// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/sineline.h"

#include "foundation/chance.h"
#include "foundation/memory.h"
#include "foundation/random.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/imgfx.h"
#include "image/rgb888.h"

#include <algorithm>
#include <cstdlib>

namespace velm {

const IDENTITY SINELINE_identity = makeIdentity("SINELINE", "C", "CODE", "20150704", "ZENDORAK");
std::uint8_t SINELINE_verbose = 0;

namespace {

constexpr std::int32_t mostEchoes = 16;
constexpr std::int32_t leastCorners = 3;

struct Corner {
    std::int32_t x, y;
};

std::int32_t drawTurns() {
    return chance() % 3 + 1;
}

/// `reach` as the breath of `ago` frames before leaves it.
std::int32_t breathed(const SINELINE& line, std::int32_t reach, std::int32_t ago) {
    const std::int32_t sunk =
        wrapMul(line.depth,
                32768 + SINE_entry(wrapSub(line.breath.phase, wrapMul(line.breath.speed, ago)))) >>
        16;
    return wrapMul(reach, 256 - sunk) >> 8;
}

/// A corner of the curve as it was `ago` frames before.
Corner cornerOf(const SINELINE& line, const std::int32_t (&reach)[2], std::int32_t index, std::int32_t ago) {
    const auto around = static_cast<std::int32_t>(std::int64_t{index} * SINE_tableLength / line.corners);
    Corner corner = {.x = line.x, .y = line.y};
    for (std::size_t i = 0; i < 2; ++i) {
        const SINELINE_WAVE& wave = line.wave[i];
        const auto swing = [&](std::int32_t phase, std::int32_t speed, std::int32_t turns) {
            const std::int32_t then = wrapSub(phase, wrapMul(speed, ago));
            return SINE_scaled(reach[i], wrapAdd(then, wrapMul(turns, around)));
        };
        corner.x = wrapAdd(corner.x, swing(wave.phaseX, wave.speedX, wave.turnsX));
        corner.y = wrapAdd(corner.y, swing(wave.phaseY, wave.speedY, wave.turnsY));
    }
    return corner;
}

void drawCurve(const SINELINE& line, IMG* target, std::int32_t ago, std::uint32_t colour) {
    const std::int32_t reach[2] = {breathed(line, line.wave[0].reach, ago),
                                   breathed(line, line.wave[1].reach, ago)};
    Corner from = cornerOf(line, reach, 0, ago);
    for (std::int32_t i = 1; i <= line.corners; ++i) {
        const Corner to = cornerOf(line, reach, i, ago); // the last one is a whole turn on: the first again
        IMGFX_addLine(target, from.x, from.y, to.x, to.y, colour);
        from = to;
    }
}

} // namespace

SINELINE* SINELINE_new() {
    SINELINE* line = allocateRecord<SINELINE>();
    SINELINE_randomize(line); // reports when memory ran out
    return line;
}

void SINELINE_randomize(SINELINE* line) {
    if (refused(line == nullptr, SINELINE_error)) {
        return;
    }
    for (SINELINE_WAVE& wave : line->wave) {
        wave.phaseX = chance() & SINE_tableMask;
        wave.phaseY = chance() & SINE_tableMask;
        wave.speedX = RANDOM_eitherWay(chance());
        wave.speedY = RANDOM_eitherWay(chance());
        wave.turnsX = drawTurns();
        wave.turnsY = drawTurns();
    }
}

void SINELINE_advance(SINELINE* line) {
    if (refused(line == nullptr, SINELINE_error)) {
        return;
    }
    for (SINELINE_WAVE& wave : line->wave) {
        wave.phaseX = wrapAdd(wave.phaseX, wave.speedX) & SINE_tableMask;
        wave.phaseY = wrapAdd(wave.phaseY, wave.speedY) & SINE_tableMask;
    }
    SINE_advance(&line->breath);
}

void SINELINE_draw(const SINELINE* line, IMG* target) {
    if (refused(line == nullptr || line->corners < leastCorners || !hasPixels(target), SINELINE_error)) {
        return;
    }
    const std::int32_t echoes = std::clamp(line->echoes, 1, mostEchoes);
    for (std::int32_t echo = echoes - 1; echo >= 0; --echo) {
        // 0 for the newest; the echoes turn into the other colour and fade to nothing.
        const std::int32_t age = RGB888_fullWeight * echo / echoes;
        const std::uint32_t colour =
            RGB888_mix(line->colour, line->echoColour, static_cast<std::uint32_t>(age));
        drawCurve(*line, target, wrapMul(echo, line->lag), RGB888_dim(colour, RGB888_fullWeight - age));
    }
}

void SINELINE_delete(SINELINE** handle) {
    deleteRecord(handle, SINELINE_error);
}

void SINELINE_error() {
    reportLine(SINELINE_verbose, "SINELINE error");
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The generators. Phases and periods are in values with a fraction of 15 bits.
#include "audio/sound.h"

#include "foundation/chance.h"
#include "foundation/report.h"
#include "foundation/wide.h"
#include "foundation/wrap.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace velm {

const IDENTITY SOUND_identity = makeIdentity("SOUND", "C", "ZENDORAK", "20150408", "CODE");
std::uint8_t SOUND_verbose = 0;

namespace {

constexpr std::int32_t fractionBits = 15;
constexpr std::int32_t secondInFractions = SAMPLE_rate << fractionBits;
constexpr std::int32_t highest = 32767;
constexpr std::int32_t lowest = -32768;

/// One period, SAMPLE_rate values; made once and never freed.
SAMPLE* sineTable = nullptr;

/// Lays a quarter wave down four times, mirrored and negated.
void fillSineTable(SAMPLE* table) {
    constexpr std::int32_t half = SAMPLE_rate / 2;
    constexpr std::int32_t quarter = half / 2;
    // Half of pi as single precision has it: slightly too large, so that the peak truncates to 32766.
    constexpr double quarterTurn = 1.5707964F;
    for (std::int32_t i = 0; i <= quarter; ++i) {
        const auto value = static_cast<std::int32_t>(std::sin(i * quarterTurn / 11025.0) * 32767.0);
        SAMPLE_set(table, i, value);
        SAMPLE_set(table, half - i, value);
        SAMPLE_set(table, half + i, -value);
        // SOUND_sineTableOverrun: one expects every store to lie inside; the one of i = 0 is one past the
        // end. SAMPLE_set refuses it, and entry 0 keeps its 0.
        SAMPLE_set(table, SAMPLE_rate - i, -value);
    }
}

/// The table, made by the first call; nullptr (reported) when memory runs out.
const SAMPLE* requireSineTable() {
    if (sineTable != nullptr) {
        return sineTable;
    }
    SAMPLE* table = SAMPLE_new();
    SAMPLE_setLength(table, SAMPLE_rate);
    if (table == nullptr || table->length != SAMPLE_rate) {
        if (table != nullptr) {
            SAMPLE_delete(&table);
        }
        SOUND_error();
        return nullptr;
    }
    fillSineTable(table);
    sineTable = table;
    return sineTable;
}

/// data[i] = sign * data[axis - i] from one index to before another, all beyond half of the axis.
void mirror(std::int32_t* data, std::int32_t axis, std::int32_t begin, std::int32_t end, std::int32_t sign) {
    runWide([=] {
        for (std::int32_t i = begin; i < end; ++i) {
            data[i] = sign * data[axis - i];
        }
    });
}

/// One cycle of a square wave: full scale up, 0, full scale down, 0. `next` is where the last cycle ended.
void squareCycle(SAMPLE* sample, std::int32_t phase, std::int32_t period, std::int32_t& next) {
    const std::int32_t begin = phase >> fractionBits;
    const std::int32_t middle = (period / 2 + phase) >> fractionBits;
    const std::int32_t end = std::max(((period + phase) >> fractionBits) - 1, middle + 1);
    SAMPLE_set(sample, next, 0);
    std::fill(sample->data + begin, sample->data + middle, highest);
    SAMPLE_set(sample, middle, 0);
    std::fill(sample->data + middle + 1, sample->data + end, lowest);
    SAMPLE_set(sample, end, 0);
    next = end;
}

std::int32_t drawNoise() {
    return (chance() & 0xFFFF) + lowest;
}

/// The gains of a fade: the line from `start` by 32767 in direction `sign` that SAMPLE_ramp stores over a
/// whole sample. Before index i, which is not 0, it has moved by (i * height + bias) / width, rounded down.
/// Half a unit on top of the dividend keeps the quotient off the whole numbers by more than a double's
/// rounding, so slope and offset have the same result.
struct FadeLine {
    std::int32_t start, sign;
    double slope = 0, offset = 0;

    FadeLine(std::int32_t first, std::int32_t direction, std::int32_t width) : start(first), sign(direction) {
        constexpr std::int32_t height = highest;
        const bool steep = width <= height;
        const std::int32_t bias = steep ? height / 2 - height + width - 1 : width - width / 2;
        if (width > 0) {
            slope = double{height} / width;
            offset = (bias + 0.5) / width;
        }
    }

    std::int32_t gain(std::int32_t i) const {
        return start + sign * static_cast<std::int32_t>(i * slope + offset);
    }
};

std::int32_t scaled(std::int32_t value, std::int32_t gain) {
    return wrapMul(value, gain) >> fractionBits;
}

void fadeOnce(std::int32_t* data, std::int32_t length, const FadeLine& line) {
    runWide([=] {
        for (std::int32_t i = 1; i < length; ++i) {
            data[i] = scaled(data[i], line.gain(i));
        }
    });
}

/// The same so many times; the gains of a block stay at hand from time to time.
void fadeTimes(std::int32_t* data, std::int32_t length, const FadeLine& line, std::int32_t times) {
    runWide([=] {
        constexpr std::int32_t block = 512;
        for (std::int32_t first = 1, count = 0; first < length; first += count) {
            count = std::min(block, length - first);
            std::int32_t gains[block];
            for (std::int32_t i = 0; i < count; ++i) {
                gains[i] = line.gain(first + i);
            }
            for (std::int32_t time = 0; time < times; ++time) {
                for (std::int32_t i = 0; i < count; ++i) {
                    data[first + i] = scaled(data[first + i], gains[i]);
                }
            }
        }
    });
}

/// Multiplies by the line and scales back, so many times: what SAMPLE_ramp, SAMPLE_multiply and
/// SAMPLE_shiftRight do, in one pass.
void fade(SAMPLE* sample, std::int32_t start, std::int32_t sign, std::int32_t times) {
    if (refused(sample == nullptr, SOUND_error)) {
        return;
    }
    if (sample->length == 0) {
        // Nothing to fade; the line from index 0 to index -1 and what follows it report as they do.
        SAMPLE_ramp(sample, 0, start, -1, 0);
        SAMPLE_multiply(sample, sample);
        SAMPLE_shiftRight(sample, fractionBits);
        return;
    }
    for (std::int32_t time = 0; time < times; ++time) {
        sample->data[0] = scaled(sample->data[0], start);
    }
    const FadeLine line(start, sign, sample->length - 1);
    times == 1 ? fadeOnce(sample->data, sample->length, line)
               : fadeTimes(sample->data, sample->length, line, times);
}

/// Multiplies by a gain that starts at `gain` and moves by 32768 over the whole sample, in direction `sign`.
void runGain(SAMPLE* sample, std::int32_t gain, std::int32_t sign) {
    if (refused(!hasValues(sample), SOUND_error)) {
        return;
    }
    constexpr std::int32_t fullMove = 0x40000000;
    const std::int32_t step = fullMove / sample->length;
    std::int32_t moved = 0;
    for (std::int32_t i = 0; i < sample->length; ++i) {
        sample->data[i] = scaled(sample->data[i], gain);
        moved += step;
        gain += sign * (moved >> fractionBits);
        moved &= highest;
    }
}

} // namespace

void SOUND_sine(SAMPLE* sample, std::int32_t frequency) {
    if (refused(sample == nullptr, SOUND_error)) {
        return;
    }
    const SAMPLE* const table = requireSineTable();
    if (refused(table == nullptr || frequency < 1 || frequency >= SAMPLE_rate, SOUND_error)) {
        return;
    }
    // A whole number of hertz moves the phase by whole entries, so it needs no fraction, and comes back to 0
    // after a whole number of values: from there on the wave is a copy of itself. From a quarter of a second
    // on it is its own mirror image, the way the table is.
    constexpr std::int32_t half = SAMPLE_rate / 2;
    const std::int32_t period = SAMPLE_rate / std::gcd(frequency, SAMPLE_rate);
    const std::int32_t once = std::min(sample->length, period);
    const std::int32_t fresh = std::min(once, half / 2 + 1);
    for (std::int32_t i = 0, phase = 0; i < fresh; phase -= SAMPLE_rate) {
        for (; i < fresh && phase < SAMPLE_rate; phase += frequency) {
            sample->data[i++] = table->data[phase];
        }
    }
    mirror(sample->data, half, fresh, std::min(once, half + 1), frequency % 2 == 0 ? -1 : 1);
    mirror(sample->data, SAMPLE_rate, half + 1, once, -1);
    for (std::int32_t done = once; done < sample->length; done += period) {
        std::copy_n(sample->data, std::min(period, sample->length - done), sample->data + done);
    }
}

void SOUND_square(SAMPLE* sample, std::int32_t frequency) {
    if (refused(sample == nullptr || frequency < 1 || frequency > secondInFractions, SOUND_error)) {
        return;
    }
    const std::int32_t period = secondInFractions / frequency;
    // SOUND_squareLengthLimit: one expects any length to work; the length in fractions wraps, so a sample of
    // 65536 values gets no cycle at all. The instruments are shorter.
    const std::int32_t cycles = wrapShl(sample->length, fractionBits) / period;
    // SOUND_squareLeavesTail: one expects the wave to fill the sample; what is left of a cycle keeps its old
    // values, and some instruments are heard with them.
    std::int32_t phase = 0;
    std::int32_t next = 0;
    for (std::int32_t cycle = 0; cycle < cycles; ++cycle) {
        squareCycle(sample, phase, period, next);
        phase += period;
    }
}

void SOUND_noise(SAMPLE* sample, std::int32_t rate) {
    if (refused(sample == nullptr, SOUND_error)) {
        return;
    }
    std::int32_t value = drawNoise();
    std::int32_t counter = SAMPLE_rate / 2;
    for (std::int32_t i = sample->length - 1; i >= 0; --i) {
        counter = wrapSub(counter, rate);
        if (counter < 0) {
            counter += SAMPLE_rate;
            value = drawNoise();
        }
        sample->data[i] = value;
    }
}

void SOUND_fadeOut(SAMPLE* sample) {
    SOUND_fadeOutTimes(sample, 1);
}

void SOUND_fadeOutTimes(SAMPLE* sample, std::int32_t times) {
    fade(sample, highest, -1, times);
}

void SOUND_fadeIn(SAMPLE* sample) {
    fade(sample, 0, 1, 1);
}

void SOUND_decay(SAMPLE* sample) {
    runGain(sample, 1 << fractionBits, -1);
}

void SOUND_attack(SAMPLE* sample) {
    runGain(sample, 0, 1);
}

void SOUND_check(const void* pointer) {
    if (pointer == nullptr) {
        SOUND_error();
    }
}

void SOUND_error() {
    reportLine(SOUND_verbose, "SOUND Error.");
}

} // namespace velm

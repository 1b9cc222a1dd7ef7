// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/random.h"

#include "foundation/record.h"
#include "foundation/report.h"

#include <algorithm>

namespace velm {

const IDENTITY RANDOM_identity = makeIdentity("RANDOM", "ZENDORAK", "C", "CODE", "20150318");
std::uint8_t RANDOM_verbose = 0;

namespace {

constexpr std::uint32_t low24 = 0xFFFFFF;

/// One draw: counts, lets `mix` change the state, and returns the state as a signed word; 0 (reported)
/// without a record.
template <typename Mix>
std::int32_t draw(RANDOM* random, Mix mix) {
    if (refused(random == nullptr, RANDOM_error)) {
        return 0;
    }
    ++random->counter;
    mix(*random);
    return static_cast<std::int32_t>(random->state);
}

} // namespace

RANDOM* RANDOM_new() {
    return newRecord<RANDOM>(RANDOM_error);
}

std::int32_t RANDOM_next(RANDOM* random) {
    return draw(random, [](RANDOM& r) {
        r.multiplier = (r.multiplier * (r.state * r.counter)) & low24;
        r.state = (r.state + r.counter + r.multiplier) & low24;
    });
}

std::int32_t RANDOM_nextAdd(RANDOM* random) {
    return draw(random, [](RANDOM& r) { r.state = (r.state + r.counter) & low24; });
}

std::int32_t RANDOM_nextDouble(RANDOM* random) {
    return draw(random, [](RANDOM& r) { r.state = (r.state * 2 + r.counter) & low24; });
}

std::int32_t RANDOM_nextSquare(RANDOM* random) {
    return draw(random, [](RANDOM& r) {
        r.mask = low24 << (r.state & 7);
        r.multiplier = (r.multiplier * r.multiplier) & 0xFFFF;
        r.state = r.state ^ r.counter ^ r.multiplier ^ r.mask;
    });
}

std::int32_t RANDOM_nextFold(RANDOM* random) {
    return draw(random, [](RANDOM& r) {
        r.state ^= r.counter;
        r.state ^= r.state >> 16;
    });
}

std::int32_t RANDOM_nextSpread(RANDOM* random) {
    return draw(random, [](RANDOM& r) {
        r.state ^= r.counter;
        r.state *= 0x10001;
    });
}

std::int32_t RANDOM_nextMix(RANDOM* random) {
    return draw(random, [](RANDOM& r) {
        r.state ^= r.counter;
        r.state += r.counter;
        r.state *= r.counter;
    });
}

std::int32_t RANDOM_below(RANDOM* random, std::int32_t limit) {
    return RANDOM_next(random) % std::max(limit, 1);
}

RANDOM* RANDOM_clone(const RANDOM* src) {
    // RANDOM_cloneForgets: one expects a copy; it is a fresh generator, so a clone repeats the sequence from
    // its start.
    return refused(src == nullptr, RANDOM_error) ? nullptr : RANDOM_new();
}

void RANDOM_delete(RANDOM** handle) {
    deleteRecord(handle, RANDOM_error);
}

void RANDOM_error() {
    reportLine(RANDOM_verbose, "RANDOM error");
}

} // namespace velm

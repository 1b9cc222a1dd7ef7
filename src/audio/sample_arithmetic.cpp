// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The arithmetic of SAMPLE: every value of a sample, or every pair of two. Products and sums wrap at 32 bits,
// quotients truncate towards 0, shifts round down. The loops are plain, so that the compiler vectorises them.
#include "audio/sample.h"
#include "foundation/report.h"
#include "foundation/wide.h"
#include "foundation/wrap.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <numeric>

namespace velm {

namespace {

constexpr std::int32_t mostShift = 32;

/// sample[i] = operation(sample[i]); reported when there is no data.
template <typename Operation>
void change(SAMPLE* sample, Operation operation) {
    if (refused(!hasData(sample), SAMPLE_error)) {
        return;
    }
    runWide([data = sample->data, length = sample->length, operation] {
        std::transform(data, data + length, data, operation);
    });
}

/// How far both reach, where both have data; otherwise -1, reported.
std::int32_t commonLength(const SAMPLE* a, const SAMPLE* b) {
    return refused(!hasData(a) || !hasData(b), SAMPLE_error) ? -1 : std::min(a->length, b->length);
}

/// a[i] = operation(a[i], b[i]) as far as both reach; reported when one has no data.
template <typename Operation>
void combine(SAMPLE* a, const SAMPLE* b, Operation operation) {
    if (const std::int32_t length = commonLength(a, b); length > 0) {
        runWide([to = a->data, from = b->data, length, operation] {
            std::transform(to, to + length, from, to, operation);
        });
    }
}

// A truncated quotient is a product with a factor that is a little more than the exact one, in magnitude:
// what divides stays at or above its quotient, and the rest stays below the next one, as long as the value
// times the excess, with that of the product's rounding, is less than 1.

/// Divides by any number but 0 and -1, quickly in bulk.
struct Divider {
    double factor; ///< 1 / divisor and a little

    explicit Divider(std::int32_t divisor) : factor((1 + 0x1p-50) / divisor) {}

    std::int32_t quotient(std::int32_t value) const {
        return static_cast<std::int32_t>(static_cast<double>(value) * factor);
    }
};

/// value * n / d in half the width, for values whose products with n stay within 2^21.
struct Ratio {
    static constexpr std::int64_t block = 64;
    float factor;        ///< n / d and a little
    std::uint32_t reach; ///< a power of two, or 0: for values from -reach to reach - 1

    Ratio(std::int32_t n, std::int32_t d) : factor(static_cast<float>((1 + 0x1p-23) * n / d)) {
        const auto scale = static_cast<std::uint64_t>(std::max(std::abs(std::int64_t{n}), std::int64_t{1}));
        reach = static_cast<std::uint32_t>(std::bit_floor((std::uint64_t{1} << 21) / scale));
    }

    std::int32_t quotient(std::int32_t value) const {
        return static_cast<std::int32_t>(static_cast<float>(value) * factor);
    }

    /// For a whole block of values.
    bool isExactFor(const std::int32_t* values) const {
        std::uint32_t aboveLeast = 0; // the bits of all of them
        for (std::int64_t i = 0; i < block; ++i) {
            aboveLeast |= static_cast<std::uint32_t>(values[i]) + reach;
        }
        return aboveLeast < 2 * reach;
    }
};

/// to[i] += from[i] * n / d for so many values, on any processor.
void addQuotients(std::int32_t* to, const std::int32_t* from, std::int64_t length, std::int32_t n,
                  Divider divider) {
    for (std::int64_t i = 0; i < length; ++i) {
        to[i] = wrapAdd(to[i], divider.quotient(wrapMul(from[i], n)));
    }
}

/// The same, block by block, where the values allow it.
void addRatios(std::int32_t* to, const std::int32_t* from, std::int64_t length, std::int32_t n,
               std::int32_t d) {
    if (!wideRegisters) {
        addQuotients(to, from, length, n, Divider(d));
        return;
    }
    runOnWideRegisters([=, ratio = Ratio(n, d), divider = Divider(d)] {
        std::int64_t first = 0;
        for (; first + Ratio::block <= length; first += Ratio::block) {
            if (!ratio.isExactFor(from + first)) {
                addQuotients(to + first, from + first, Ratio::block, n, divider);
                continue;
            }
            for (std::int64_t i = first; i < first + Ratio::block; ++i) {
                to[i] = wrapAdd(to[i], ratio.quotient(from[i]));
            }
        }
        addQuotients(to + first, from + first, length - first, n, divider);
    });
}

/// operation(...operation(first, second)..., last) of a sample that has values.
template <typename Operation>
std::int32_t reduce(const SAMPLE& sample, Operation operation) {
    std::int32_t result = 0;
    runWide([=, &result, data = sample.data, length = sample.length] {
        result = std::accumulate(data + 1, data + length, data[0], operation);
    });
    return result;
}

} // namespace

void SAMPLE_add(SAMPLE* a, const SAMPLE* b) {
    combine(a, b, [](std::int32_t x, std::int32_t y) { return wrapAdd(x, y); });
}

void SAMPLE_multiply(SAMPLE* a, const SAMPLE* b) {
    combine(a, b, [](std::int32_t x, std::int32_t y) { return wrapMul(x, y); });
}

void SAMPLE_mixScaled(SAMPLE* a, const SAMPLE* b, std::int32_t n, std::int32_t d) {
    if (refused(d == 0, SAMPLE_error)) {
        return;
    }
    if (d == -1) {
        combine(a, b, [n](std::int32_t x, std::int32_t y) { return wrapSub(x, wrapMul(y, n)); });
        return;
    }
    if (const std::int32_t length = commonLength(a, b); length > 0) {
        addRatios(a->data, b->data, length, n, d);
    }
}

void SAMPLE_mixFixed(SAMPLE* a, const SAMPLE* b, std::int32_t f) {
    constexpr std::int32_t fractionBits = 16;
    combine(a, b, [f](std::int32_t x, std::int32_t y) { return wrapAdd(x, wrapMul(y, f) >> fractionBits); });
}

void SAMPLE_scale(SAMPLE* sample, std::int32_t factor) {
    change(sample, [factor](std::int32_t value) { return wrapMul(value, factor); });
}

void SAMPLE_divide(SAMPLE* sample, std::int32_t divisor) {
    if (refused(divisor == 0, SAMPLE_error)) {
        return;
    }
    if (divisor == -1) {
        SAMPLE_scale(sample, -1);
        return;
    }
    change(sample, [divider = Divider(divisor)](std::int32_t value) { return divider.quotient(value); });
}

void SAMPLE_shiftRight(SAMPLE* sample, std::int32_t count) {
    if (refused(count < 0 || count > mostShift, SAMPLE_error)) {
        return;
    }
    change(sample, [shift = count % mostShift](std::int32_t value) { return value >> shift; });
}

void SAMPLE_shiftLeft(SAMPLE* sample, std::int32_t count) {
    if (refused(count < 0 || count > mostShift, SAMPLE_error)) {
        return;
    }
    change(sample, [shift = count % mostShift](std::int32_t value) { return wrapShl(value, shift); });
}

std::int32_t SAMPLE_min(const SAMPLE* sample) {
    if (refused(!hasValues(sample), SAMPLE_error)) {
        return 0;
    }
    return reduce(*sample, [](std::int32_t x, std::int32_t y) { return std::min(x, y); });
}

std::int32_t SAMPLE_max(const SAMPLE* sample) {
    if (refused(!hasValues(sample), SAMPLE_error)) {
        return 0;
    }
    return reduce(*sample, [](std::int32_t x, std::int32_t y) { return std::max(x, y); });
}

void SAMPLE_normalize(SAMPLE* sample, std::int32_t peak) {
    const std::int64_t magnitude = hasValues(sample) ? std::max(std::abs(std::int64_t{SAMPLE_min(sample)}),
                                                                std::abs(std::int64_t{SAMPLE_max(sample)}))
                                                     : 0;
    if (refused(magnitude == 0, SAMPLE_error)) {
        return;
    }
    // A 32.32 factor, truncated. Its product with a value stays within peak, so 64 bits hold it; unsigned for
    // the one that is 2^63.
    const std::int64_t factor = std::int64_t{peak} * (std::int64_t{1} << 32) / magnitude;
    change(sample, [factor](std::int32_t value) {
        const std::uint64_t product = static_cast<std::uint64_t>(value) * static_cast<std::uint64_t>(factor);
        return static_cast<std::int32_t>(product >> 32);
    });
}

void SAMPLE_rescale(SAMPLE* sample, std::int32_t low, std::int32_t high) {
    if (refused(!hasValues(sample), SAMPLE_error)) {
        return;
    }
    const std::int64_t least = SAMPLE_min(sample);
    const std::int64_t range = SAMPLE_max(sample) - least;
    if (refused(range == 0, SAMPLE_error)) {
        return;
    }
    // low + (value - least) * (high - low) / range, truncated; magnitudes, since the product fills 64 bits.
    const auto height = static_cast<std::uint64_t>(std::abs(std::int64_t{high} - low));
    change(sample, [=](std::int32_t value) {
        const auto above = static_cast<std::uint64_t>(value - least);
        const auto move = static_cast<std::int32_t>(above * height / static_cast<std::uint64_t>(range));
        return high < low ? wrapSub(low, move) : wrapAdd(low, move);
    });
}

} // namespace velm

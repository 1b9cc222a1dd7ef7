// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/chance.h"

#include <array>

namespace velm {

namespace {

constexpr std::uint32_t words = 31;
constexpr std::uint32_t shortLag = 3;

struct AdditiveGenerator {
    std::array<std::uint32_t, words> ring;
    std::uint32_t oldest = shortLag; ///< index of the word from 31 draws ago, which the next draw replaces
};

constexpr std::int32_t draw(AdditiveGenerator& generator) {
    std::uint32_t& word = generator.ring[generator.oldest];
    word += generator.ring[(generator.oldest + words - shortLag) % words];
    generator.oldest = (generator.oldest + 1) % words;
    return static_cast<std::int32_t>(word >> 1);
}

/// The next word of the first 31. A negative one stays negative in the division and is lifted afterwards.
constexpr std::int32_t nextSeedWord(std::int32_t word) {
    constexpr std::int64_t multiplier = 16807;
    constexpr std::int64_t modulus = 0x7FFFFFFF;
    const std::int64_t remainder = multiplier * word % modulus;
    return static_cast<std::int32_t>(remainder < 0 ? remainder + modulus : remainder);
}

constexpr AdditiveGenerator seeded(std::uint32_t seed) {
    constexpr std::int32_t thrownAway = 310;
    AdditiveGenerator generator{.ring = {}};
    auto word = static_cast<std::int32_t>(seed == 0 ? 1 : seed);
    for (std::uint32_t& entry : generator.ring) {
        entry = static_cast<std::uint32_t>(word);
        word = nextSeedWord(word);
    }
    for (std::int32_t i = 0; i < thrownAway; ++i) {
        draw(generator);
    }
    return generator;
}

AdditiveGenerator generator = seeded(1);

} // namespace

void chanceSeed(std::uint32_t seed) {
    generator = seeded(seed);
}

std::int32_t chance() {
    return draw(generator);
}

} // namespace velm

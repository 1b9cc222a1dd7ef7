// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Samples from lists, random samples from a seed, and lists from samples.
//
//     const Sample voice({1, 2, 3});
//     EXPECT_EQ(values(voice), (std::vector{1, 2, 3}));
#pragma once

#include "audio/sample.h"

#include <cstdint>
#include <random>
#include <vector>

namespace velm::test {

/// A sample that lives as long as its scope.
class Sample {
public:
    explicit Sample(const std::vector<std::int32_t>& from = {}) {
        for (const std::int32_t value : from) {
            SAMPLE_append(sample, value);
        }
    }
    ~Sample() { SAMPLE_delete(&sample); }
    Sample(const Sample&) = delete;
    Sample& operator=(const Sample&) = delete;
    operator SAMPLE*() const { return sample; }
    SAMPLE* operator->() const { return sample; }

private:
    SAMPLE* sample = SAMPLE_new();
};

inline std::vector<std::int32_t> values(const SAMPLE* sample) {
    return {sample->data, sample->data + sample->length};
}

/// A number between the two, both included.
inline std::int32_t number(std::mt19937& engine, std::int32_t least, std::int32_t most) {
    return std::uniform_int_distribution<std::int32_t>(least, most)(engine);
}

/// Values of 16 bits, with the extremes of 32 bits among them.
inline std::vector<std::int32_t> randomValues(std::mt19937& engine, std::int32_t length) {
    constexpr std::int32_t corners[] = {0, 1, -1, INT32_MAX, INT32_MIN, 32767, -32768, 40000};
    std::vector<std::int32_t> list(static_cast<std::size_t>(length));
    for (std::int32_t& value : list) {
        const std::int32_t choice = number(engine, 0, 15);
        value = choice < 8 ? corners[choice] : number(engine, -32768, 32767);
    }
    return list;
}

} // namespace velm::test

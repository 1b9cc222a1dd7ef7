// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Samples from lists, random samples from a seed, and lists from samples.
//
//     const Sample voice({1, 2, 3});
//     EXPECT_EQ(values(voice), (std::vector{1, 2, 3}));
#pragma once

#include "audio/sample.h"
#include "support/owned.h"

namespace velm::test {

using List = std::vector<std::int32_t>;

inline SAMPLE* sampleOf(const List& from) {
    SAMPLE* sample = SAMPLE_new();
    for (const std::int32_t value : from) {
        SAMPLE_append(sample, value);
    }
    return sample;
}

/// A sample that lives as long as its scope.
struct Sample : Owned<SAMPLE_delete> {
    explicit Sample(const List& from = {}) : Owned(sampleOf(from)) {}
};

inline List values(const SAMPLE* sample) {
    return {sample->data, sample->data + sample->length};
}

/// Values of 16 bits, with the extremes of 32 bits among them.
inline List randomValues(Images& engine, std::int32_t length) {
    constexpr std::int32_t corners[] = {0, 1, -1, INT32_MAX, INT32_MIN, 32767, -32768, 40000};
    List list(static_cast<std::size_t>(length));
    for (std::int32_t& value : list) {
        const std::int32_t choice = engine.number(0, 15);
        value = choice < 8 ? corners[choice] : engine.number(-32768, 32767);
    }
    return list;
}

} // namespace velm::test

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Pictures with an owner, and calls that are to fail.
//
//     const Picture screen(noise(64, 48, 1));
//     expectReports(IMG_verbose, 1, "IMG error", [] { IMG_delete(nullptr); });
#pragma once

#include "foundation/owned.h"
#include "support/allocation.h"
#include "support/images.h"

namespace velm::test {

using Picture = Owned<IMG_delete>;

inline IMG* noise(std::int32_t width, std::int32_t height, std::uint32_t seed) {
    return Images(seed).image(width, height);
}

/// Expects the calls to print the line that many times, and nothing else.
template <typename Calls>
void expectReports(std::uint8_t& verbose, std::int32_t times, const std::string& line, Calls calls) {
    std::string expected;
    for (std::int32_t i = 0; i < times; ++i) {
        expected += line + "\n";
    }
    const std::uint8_t before = verbose;
    verbose = 1;
    EXPECT_EQ(printedBy(calls), expected);
    verbose = before;
}

/// Expects nullptr when the nth allocation fails.
template <typename Make>
void expectFailure(std::int64_t nth, Make make) {
    const FailingAllocation failure(nth);
    EXPECT_EQ(make(), nullptr);
}

} // namespace velm::test

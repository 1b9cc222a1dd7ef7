// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What every test begins with: GoogleTest, the library's everyday headers, and what a call printed.
//
//     IMG_verbose = 1;
//     EXPECT_EQ(printedBy([] { IMG_delete(nullptr); }), "IMG error\n");
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <limits>
#include <memory>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velm::test {

/// What a call printed on standard output.
template <typename Call>
std::string printedBy(Call call) {
    testing::internal::CaptureStdout();
    call();
    return testing::internal::GetCapturedStdout();
}

} // namespace velm::test

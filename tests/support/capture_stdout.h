// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What a call printed on standard output.
//
//     IMG_verbose = 1;
//     EXPECT_EQ(printedBy([] { IMG_delete(nullptr); }), "IMG error\n");
#pragma once

#include <gtest/gtest.h>
#include <string>

namespace velm::test {

template <typename Call>
std::string printedBy(Call call) {
    testing::internal::CaptureStdout();
    call();
    return testing::internal::GetCapturedStdout();
}

} // namespace velm::test

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The test programs' own operator new: it counts, and it can refuse.
//
//     FailingAllocation second(2); // the second allocation from here on gives nullptr
//     EXPECT_EQ(IMG_new(), nullptr);
#pragma once

#include "support/test.h"

namespace velm::test {

/// How often the project's allocations (new with std::nothrow) were asked for memory so far.
std::int64_t allocationCount();

/// How often anybody was: the standard library counts, too.
std::int64_t everyAllocationCount();

/// While it lives, the nth allocation counted from its construction (1 is the next one) gives nullptr.
class FailingAllocation {
public:
    explicit FailingAllocation(std::int64_t nth);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
};

/// While it lives, every allocation asks `isRefused`, and gives nullptr where that says true.
class AskedAllocations {
public:
    explicit AskedAllocations(bool (*isRefused)());
    ~AskedAllocations();
    AskedAllocations(const AskedAllocations&) = delete;
    AskedAllocations& operator=(const AskedAllocations&) = delete;
};

/// Who refuses one allocation after another takes every so manieth: under the sanitizers each costs much
/// more.
constexpr std::int32_t sparing = VELM_IS_SANITIZED ? 5 : 1;

/// Frees what the project allocates during the call and keeps, and gives how many those were: for leaks that
/// are kept on purpose.
std::int64_t keptBy(void (*call)());

} // namespace velm::test

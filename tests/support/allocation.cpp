// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "support/allocation.h"

#include <cstdlib>
#include <new>

namespace {

std::int64_t allocations = 0;
std::int64_t failingAllocation = 0;

void* allocateCounted(std::size_t size) {
    ++allocations;
    return allocations == failingAllocation ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void* allocateOrThrow(std::size_t size) {
    void* memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

} // namespace

void* operator new(std::size_t size) {
    return allocateOrThrow(size);
}
void* operator new[](std::size_t size) {
    return allocateOrThrow(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocateCounted(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocateCounted(size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace velm::test {

std::int64_t allocationCount() {
    return allocations;
}

FailingAllocation::FailingAllocation(std::int64_t nth) {
    failingAllocation = allocations + nth;
}
FailingAllocation::~FailingAllocation() {
    failingAllocation = 0;
}

} // namespace velm::test

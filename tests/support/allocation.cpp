// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "support/allocation.h"

#include <new>

namespace {

std::int64_t allocations = 0;
std::int64_t otherAllocations = 0; // the library's and the tests'
std::int64_t failingAllocation = 0;
bool (*isRefusedNow)() = nullptr;
bool isKeeping = false;
std::array<void*, 16> kept{}; // those still alive; nullptr elsewhere

/// Puts `with` in the place of `memory`; what is not found, or has no place left, is let go.
void replaceKept(const void* memory, void* with) {
    if (void** const place = std::find(kept.begin(), kept.end(), memory); isKeeping && place != kept.end()) {
        *place = with;
    }
}

void* allocateCounted(std::size_t size, std::align_val_t alignment = {}) {
    ++allocations;
    const bool isRefused = allocations == failingAllocation || (isRefusedNow != nullptr && isRefusedNow());
    const auto unit = std::max(static_cast<std::size_t>(alignment), alignof(std::max_align_t));
    void* const memory = isRefused ? nullptr : std::aligned_alloc(unit, (size / unit + 1) * unit);
    replaceKept(nullptr, memory);
    return memory;
}

void release(void* memory) {
    replaceKept(memory, nullptr);
    std::free(memory);
}

void* allocateOrThrow(std::size_t size) {
    ++otherAllocations;
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
void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
    return allocateCounted(size, alignment);
}
void operator delete(void* memory) noexcept {
    release(memory);
}
void operator delete[](void* memory) noexcept {
    release(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    release(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    release(memory);
}
void operator delete[](void* memory, std::align_val_t) noexcept {
    release(memory);
}

namespace velm::test {

std::int64_t allocationCount() {
    return allocations;
}

std::int64_t everyAllocationCount() {
    return allocations + otherAllocations;
}

FailingAllocation::FailingAllocation(std::int64_t nth) {
    failingAllocation = allocations + nth;
}
FailingAllocation::~FailingAllocation() {
    failingAllocation = 0;
}

AskedAllocations::AskedAllocations(bool (*isRefused)()) {
    isRefusedNow = isRefused;
}
AskedAllocations::~AskedAllocations() {
    isRefusedNow = nullptr;
}

std::int64_t keptBy(void (*call)()) {
    isKeeping = true;
    call();
    isKeeping = false;
    const auto empty = std::count(kept.begin(), kept.end(), nullptr);
    std::for_each(kept.begin(), kept.end(), std::free);
    kept.fill(nullptr);
    return static_cast<std::int64_t>(kept.size()) - empty;
}

} // namespace velm::test

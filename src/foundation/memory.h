// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The one way to memory: zeroed, never throwing, sizes multiplied in one place that checks for overflow. All
// of it goes through `operator new(std::nothrow)`, which a test replaces to make the nth allocation fail.
//
//     IMG* img = allocateRecord<IMG>();                          // free with delete
//     char* text = allocateArray<char>(n);                       // free with delete[]
//     std::uint32_t* pixels = allocateAligned<std::uint32_t>(n); // free with freeAligned
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>
#include <type_traits>

namespace velm {

/// How often memory ran out since the program began. Whoever makes a lot compares it before and after, and
/// need not ask of each part whether it is there.
inline std::int64_t refusedAllocations = 0;

/// What was allocated; nullptr is counted.
template <typename Memory>
[[nodiscard]] Memory* allocated(Memory* memory) {
    refusedAllocations += memory == nullptr ? 1 : 0;
    return memory;
}

/// A record whose fields hold their defaults, 0 where they name none, or nullptr when memory runs out. The
/// caller frees it with `delete`.
template <typename Record>
[[nodiscard]] Record* allocateRecord() {
    static_assert(std::is_trivially_destructible_v<Record>, "records are plain");
    return allocated(new (std::nothrow) Record{});
}

/// False for a number of elements that is negative or too large to address.
template <typename Element>
constexpr bool isAddressable(std::int64_t count) {
    return count >= 0 &&
           count <= std::numeric_limits<std::ptrdiff_t>::max() / static_cast<std::ptrdiff_t>(sizeof(Element));
}

/// `count` zeroed elements, or nullptr when `count` is negative, too large to address, or memory runs
/// out. For a count of 0 it is a valid pointer to nothing. The caller frees it with `delete[]`.
template <typename Element>
[[nodiscard]] Element* allocateArray(std::int64_t count) {
    static_assert(std::is_trivially_destructible_v<Element>, "elements are plain");
    if (!isAddressable<Element>(count)) {
        return nullptr;
    }
    return allocated(new (std::nothrow) Element[static_cast<std::size_t>(count)]());
}

/// Bytes of a cache line. What begins with one is read and written quickest by wide registers: none of them
/// lies across two.
inline constexpr std::align_val_t cacheLine{64};

/// The same from the beginning of a cache line on, for pixels and samples. The caller frees it with
/// `freeAligned`.
template <typename Element>
[[nodiscard]] Element* allocateAligned(std::int64_t count) {
    static_assert(std::is_trivially_destructible_v<Element>, "elements are plain");
    if (!isAddressable<Element>(count)) {
        return nullptr;
    }
    return allocated(new (cacheLine, std::nothrow) Element[static_cast<std::size_t>(count)]());
}

/// Frees what allocateAligned returned.
inline void freeAligned(void* elements) {
    ::operator delete[](elements, cacheLine);
}

} // namespace velm

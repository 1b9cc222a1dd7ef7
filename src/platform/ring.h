// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A queue of fixed size from one thread or process, which pushes, to another one, which takes. Neither ever
// waits for the other, so it may lie in memory that two processes share. Whatever somebody writes over it,
// both stay within its slots and get counts that fit.
//
//     Ring<std::int16_t, 8192> sound;
//     if (sound.push(block) < block.size()) { ... }   // it is full
//     const std::uint32_t got = sound.take(bite);     // the other side
#pragma once

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>

namespace velm {

template <typename T, std::uint32_t size>
class Ring {
    static_assert(std::has_single_bit(size), "the indices wrap around at 2^32");
    static_assert(std::is_trivially_copyable_v<T>);
    static_assert(std::atomic<std::uint32_t>::is_always_lock_free);

public:
    static constexpr std::uint32_t capacity = size;

    /// Values that wait.
    [[nodiscard]] std::uint32_t count() const {
        const std::uint32_t first = taken.load(std::memory_order_acquire);
        return std::min(pushed.load(std::memory_order_acquire) - first, capacity);
    }

    /// Appends as many of the values as there is room for, and returns how many.
    std::uint32_t push(std::span<const T> values) {
        const std::uint32_t at = pushed.load(std::memory_order_relaxed);
        const auto most =
            static_cast<std::uint32_t>(std::min<std::size_t>(values.size(), capacity - count()));
        for (std::uint32_t i = 0; i < most; ++i) {
            slots[(at + i) % capacity] = values[i];
        }
        pushed.store(at + most, std::memory_order_release);
        return most;
    }

    /// Takes the oldest values, as many as there are or fit into `values`, and returns how many.
    std::uint32_t take(std::span<T> values) {
        const std::uint32_t at = taken.load(std::memory_order_relaxed);
        const auto most = static_cast<std::uint32_t>(std::min<std::size_t>(values.size(), count()));
        for (std::uint32_t i = 0; i < most; ++i) {
            values[i] = slots[(at + i) % capacity];
        }
        taken.store(at + most, std::memory_order_release);
        return most;
    }

    /// Takes all that waits, for nobody.
    void drop() { taken.store(pushed.load(std::memory_order_acquire), std::memory_order_release); }

private:
    std::atomic<std::uint32_t> pushed{0}; ///< values so far, modulo 2^32; the pushing side's
    std::atomic<std::uint32_t> taken{0};  ///< likewise; the taking side's
    T slots[size] = {};
};

} // namespace velm

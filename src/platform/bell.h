// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A bell in memory that two processes share: one rings it, the other waits for that. A semaphore of the C
// library would do, too, but ends the process that uses one over which somebody has written; this one then
// rings too often, or not at all.
//
//     bell.ring();
//     if (bell.hasRung(heard, 20000)) { ... }   // the other side
#pragma once

#include <atomic>
#include <cstdint>
#include <linux/futex.h>
#include <linux/time_types.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace velm {

class Bell {
    static_assert(std::atomic<std::uint32_t>::is_always_lock_free);
    static_assert(sizeof(std::atomic<std::uint32_t>) == sizeof(std::uint32_t), "the kernel's word");

public:
    void ring() {
        rings.fetch_add(1, std::memory_order_release);
        constexpr int one = 1;
        syscall(SYS_futex, &rings, FUTEX_WAKE, one, nullptr, nullptr, 0);
    }

    /// True when it has rung since the caller has `heard` it, which begins with 0 and is the caller's own;
    /// waits for `micros` microseconds at most, or until a signal comes.
    bool hasRung(std::uint32_t& heard, std::int64_t micros) {
        if (micros > 0 && rings.load(std::memory_order_acquire) == heard) {
            constexpr std::int64_t second = 1000000;
            constexpr std::int64_t nanosPerMicro = 1000;
            __kernel_old_timespec time{};
            time.tv_sec = static_cast<decltype(time.tv_sec)>(micros / second);
            time.tv_nsec = static_cast<decltype(time.tv_nsec)>(micros % second * nanosPerMicro);
            syscall(SYS_futex, &rings, FUTEX_WAIT, heard, &time, nullptr, 0);
        }
        const std::uint32_t now = rings.load(std::memory_order_acquire);
        const bool isNew = now != heard;
        heard = now;
        return isNew;
    }

private:
    std::atomic<std::uint32_t> rings{0};
};

} // namespace velm

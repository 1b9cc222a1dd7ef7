// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Loops that use the widest registers of the processor that they meet. A loop is written once, plainly, so
// that the compiler vectorises it; it is compiled twice, for every processor and for those with registers of
// 256 bits, and chosen between when it runs. Only whole numbers and single operations on doubles are
// computed, so both give the same bits. What no compiler makes of a plain loop stands beside it, written for
// those registers: image/wide_filters.h.
//
//     runWide([=] {
//         for (std::int32_t i = 0; i < count; ++i) {
//             to[i] &= from[i];
//         }
//     });
//
// Capture by value: what is captured by reference is read again after every store.
#pragma once

namespace velm {

#if defined(__x86_64__)

/// True where loops take 256 bits at a time. A test clears it to see what other processors compute.
inline bool wideRegisters = __builtin_cpu_supports("avx2") != 0;

/// The loop for those processors. All that it calls becomes part of it, or it would be called as it is
/// compiled for the others.
template <typename Loop>
[[gnu::target("avx2"), gnu::flatten]] void runOnWideRegisters(Loop loop) {
    loop();
}

#else

/// Elsewhere every processor has what the compiler uses.
inline bool wideRegisters = false;

template <typename Loop>
void runOnWideRegisters(Loop loop) {
    loop();
}

#endif

/// Runs the loop.
template <typename Loop>
void runWide(Loop loop) {
    if (wideRegisters) {
        runOnWideRegisters(loop);
    } else {
        loop();
    }
}

} // namespace velm

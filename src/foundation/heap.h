// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Room for much that is about to be made. A system hands memory out page by page, each at its first touch,
// which takes longer than to fill the page with sound. Asked in time, it hands out large pages.
//
//     reserveHeap(std::size_t{16} << 20); // 120 sounds follow
#pragma once

#include <cstddef>

namespace velm {

/// Makes room for the next `bytes`, 32 MiB at most, that are allocated, with large pages where the system has
/// them. Nothing is taken before it is used. From here on what is freed stays with the program, up to twice
/// as much. Does nothing where the C library knows no such thing.
void reserveHeap(std::size_t bytes);

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/heap.h"

#if defined(__GLIBC__)
#include <cstdint>
#include <cstdlib>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace velm {

#if defined(__GLIBC__)

void reserveHeap(std::size_t bytes) {
    // Blocks of up to this size, bookkeeping included, come from one place and, once free, stay there.
    constexpr std::size_t bookkeeping = 64;
    mallopt(M_MMAP_THRESHOLD, static_cast<int>(bytes + bookkeeping));
    mallopt(M_TRIM_THRESHOLD, static_cast<int>(2 * bytes));
    void* const room = std::malloc(bytes);
    const auto begin = reinterpret_cast<std::uintptr_t>(room);
    const auto offset = begin % static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    if (room != nullptr) {
        madvise(reinterpret_cast<void*>(begin - offset), bytes, MADV_HUGEPAGE);
    }
    std::free(room);
}

#else

void reserveHeap(std::size_t) {}

#endif

} // namespace velm

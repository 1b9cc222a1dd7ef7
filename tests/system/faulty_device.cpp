// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Preloaded into the demo: a sound device with a fault, which VELM_DEVICE names. "closed" never opens,
// "huge" asks for blocks of two gigabytes, "hanging" never takes one.
#include <cstdarg>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>

namespace {

int device = -1;

std::string_view fault() {
    return std::getenv("VELM_DEVICE");
}

} // namespace

extern "C" int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const int mode = va_arg(rest, int);
    va_end(rest);
    static const auto real = reinterpret_cast<int (*)(const char*, int, ...)>(dlsym(RTLD_NEXT, "open"));
    if (std::strcmp(path, "/dev/dsp") != 0) {
        return real(path, flags, mode);
    }
    while (fault() == "closed") {
        pause();
    }
    return device = real("/dev/null", flags, mode);
}

extern "C" int ioctl(int file, unsigned long request, ...) {
    va_list rest;
    va_start(rest, request);
    auto* const word = va_arg(rest, std::int32_t*);
    va_end(rest);
    static const auto real = reinterpret_cast<int (*)(int, unsigned long, ...)>(dlsym(RTLD_NEXT, "ioctl"));
    if (file != device) {
        return real(file, request, word);
    }
    constexpr unsigned long blockSize = 0xC0045004;
    if (request == blockSize) {
        *word = fault() == "huge" ? 0x7FFFFFFE : 4096;
    }
    return 0;
}

extern "C" ssize_t write(int file, const void* bytes, size_t count) {
    static const auto real =
        reinterpret_cast<ssize_t (*)(int, const void*, size_t)>(dlsym(RTLD_NEXT, "write"));
    while (file >= 0 && file == device && fault() == "hanging") {
        pause();
    }
    return real(file, bytes, count);
}

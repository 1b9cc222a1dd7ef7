// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "x11/oss.h"

#include <csignal>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/soundcard.h> // IWYU pragma: keep
#include <unistd.h>

namespace velm {

namespace {

// XSND_flagWord: one expects O_WRONLY | O_APPEND | O_SYNC by name; O_SYNC has got another bit since, and the
// device has always been opened with this word.
constexpr int openFlags = 0x1401;

/// The system's number of a request. Most processors' is the one of DspRequest; MIPS, PowerPC and SPARC mark
/// requests that are answered by other bits.
constexpr unsigned long numberOf(DspRequest request) {
    switch (request) {
    case DspRequest::reset:
        return SNDCTL_DSP_RESET;
    case DspRequest::speed:
        return SNDCTL_DSP_SPEED;
    case DspRequest::stereo:
        return SNDCTL_DSP_STEREO;
    case DspRequest::blockSize:
        return SNDCTL_DSP_GETBLKSIZE;
    case DspRequest::format:
        return SNDCTL_DSP_SETFMT;
    case DspRequest::toPlay:
        return SNDCTL_DSP_GETODELAY;
    }
    return 0;
}

} // namespace

std::int32_t OSS_open(const char* path) {
    const int device = open(path, openFlags, 0);
    if (device >= 0) {
        // The device may be a sound server's socket. When the server goes, a write shall fail, not kill.
        std::signal(SIGPIPE, SIG_IGN);
    }
    return device;
}

std::int32_t OSS_request(std::int32_t device, DspRequest request, std::int32_t* word) {
    const int answer = ioctl(device, numberOf(request), word);
    if (request == DspRequest::blockSize && (*word <= 0 || *word > OSS_largestBlock)) {
        return -1;
    }
    return answer;
}

std::int32_t OSS_write(std::int32_t device, const std::int16_t* block, std::int32_t samples) {
    return static_cast<std::int32_t>(write(device, block, static_cast<std::size_t>(samples) * sizeof *block));
}

void OSS_close(std::int32_t device) {
    if (device >= 0) {
        close(device);
    }
}

} // namespace velm

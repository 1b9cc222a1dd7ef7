// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The record, the queue and the blocks. The device is that of dsp.h.
#include "platform/xsnd.h"

#include "foundation/list.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "platform/dsp.h"

#include <algorithm>

namespace velm {

const IDENTITY XSND_identity = makeIdentity("XSND", "LINUX", "20150301", "ZENDORAK", "CODE");
std::uint8_t XSND_verbose = 0;

namespace {

/// The requests in the order that drivers expect; stops at the first that is refused.
bool configure(XSND* sound) {
    std::int32_t format = sound->format;
    const auto accepts = [sound](DspRequest request, std::int32_t* word) {
        return DSP_request(sound->fd, request, word) >= 0;
    };
    // XSND_formatTwice: one expects one request; the second lets the driver's answer land in the record.
    return accepts(DspRequest::reset, nullptr) && accepts(DspRequest::format, &format) &&
           accepts(DspRequest::format, &sound->format) && accepts(DspRequest::stereo, &sound->stereo) &&
           accepts(DspRequest::speed, &sound->rate) && accepts(DspRequest::blockSize, &sound->blockSize);
}

/// Makes a block of that size in place of the one before; without memory it reports and that one stays.
void takeBlock(XSND* sound, std::int32_t bytes) {
    if (replaceArray(sound, XSND_error, &XSND::block, &XSND::blockSamples, bytes / 2)) {
        sound->blockSize = bytes;
    }
}

/// Opens the device and makes the block that it asks for; reports when any of it fails.
void openDevice(XSND* sound) {
    sound->fd = DSP_open(sound->device);
    if (!refused(sound->fd < 0 || !configure(sound), XSND_error)) {
        takeBlock(sound, sound->blockSize);
    }
}

/// Moves the next values of the head into the block and returns their number: a whole block, or what is left,
/// which takes the sample off the queue.
std::int32_t fillBlock(XSND* sound) {
    const std::int32_t left = std::max(sound->current->length - sound->position, 0);
    const std::int32_t count = std::min(left, sound->blockSamples);
    const std::int32_t* const values = sound->current->data + sound->position;
    // XSND_lowHalfWord: one expects clipping; a value beyond 16 bits wraps.
    std::transform(values, values + count, sound->block,
                   [](std::int32_t value) { return static_cast<std::int16_t>(value); });
    if (left >= sound->blockSamples) {
        sound->position += count;
    } else {
        LIST_remove(sound->queue, 0);
        sound->position = 0;
    }
    return count;
}

/// Writes one block, if there is a head to take it from and a device to take it.
void playBlock(XSND* sound) {
    if (sound->queue == nullptr) {
        sound->queue = LIST_new();
        return;
    }
    if (sound->queue->count == 0) {
        return;
    }
    sound->current = static_cast<const SAMPLE*>(LIST_get(sound->queue, 0));
    if (sound->current == nullptr || sound->blockSamples == 0) {
        return;
    }
    const std::int32_t count = fillBlock(sound);
    const std::int32_t bytes = DSP_write(sound->fd, sound->block, count);
    sound->samplesWritten = wrapAdd(sound->samplesWritten, bytes / 2);
}

} // namespace

XSND* XSND_new() {
    XSND* const sound = newRecord<XSND>(XSND_error);
    if (sound == nullptr) {
        return nullptr;
    }
    sound->queue = LIST_new();
    openDevice(sound);
    return sound;
}

std::int32_t XSND_play(XSND* sound) {
    if (refused(sound == nullptr, XSND_error)) {
        return 0;
    }
    playBlock(sound);
    return sound->queue != nullptr && sound->queue->count > 0 ? 1 : 0;
}

std::int32_t XSND_playPart(XSND* sound) {
    if (refused(sound == nullptr, XSND_error)) {
        return 0;
    }
    playBlock(sound);
    return sound->position != 0 ? 1 : 0;
}

void XSND_setFrameRate(XSND* sound, std::int32_t framesPerSecond) {
    if (refused(sound == nullptr, XSND_error)) {
        return;
    }
    const std::int32_t bytes = sound->block != nullptr ? DSP_frameRate(sound->fd, framesPerSecond) : 0;
    if (bytes > 0) {
        takeBlock(sound, bytes);
    }
}

const char* XSND_name(const XSND* sound) {
    return refused(sound == nullptr, XSND_error) ? nullptr : "";
}

std::int32_t XSND_flush(const XSND* sound) {
    if (sound == nullptr) {
        XSND_error();
    }
    return 0;
}

std::int32_t XSND_isReady(const XSND* sound, std::int32_t word) {
    return refused(sound == nullptr || word == 0, XSND_error) ? 0 : 1;
}

void XSND_delete(XSND** handle) {
    const auto close = [](const XSND& sound) {
        if (sound.fd >= 0) {
            DSP_close(sound.fd);
        }
    };
    deleteRecord(handle, XSND_error, &XSND::block, close, deletedBy(LIST_delete, &XSND::queue));
}

void XSND_error() {
    reportLine(XSND_verbose, "XSND error");
}

} // namespace velm

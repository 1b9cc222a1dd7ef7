// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "x11/oss_thread.h"

#include "foundation/byte_order.h"
#include "foundation/memory.h"
#include "x11/oss.h"

#include <algorithm>
#include <condition_variable>
#include <csignal>
#include <mutex>
#include <thread>

namespace velm {

using Call = std::int32_t (*)(OssThread&);
using Clock = std::chrono::steady_clock;

struct OssThread {
    std::mutex mutex; ///< guards the next four; the rest belongs to the thread while a call is under way
    std::condition_variable changed;
    Call call = nullptr;   ///< nullptr while none is under way
    bool isLeft = false;   ///< no call will come any more
    bool isClosed = false; ///< the thread has nothing left to do
    bool isAlone = false;  ///< nobody waits for it to be closed, so the record is the thread's
    Clock::time_point since;
    std::int32_t device = -1;
    std::int32_t answer = -1;
    const char* path = nullptr; ///< a literal: it outlives the thread
    DspRequest request = DspRequest::reset;
    bool hasWord = false;
    std::int32_t word = 0;
    std::int16_t* block = nullptr; ///< owned
    std::int32_t samples = 0;
    std::int32_t capacity = 0; ///< samples that the block has room for
};

namespace {

void make(OssThread* thread, Call call) {
    const std::lock_guard lock(thread->mutex);
    thread->since = Clock::now();
    thread->call = call;
    thread->changed.notify_all();
}

/// The thread itself.
void serve(OssThread* thread) {
    std::unique_lock lock(thread->mutex);
    const auto isNeeded = [thread] { return thread->call != nullptr || thread->isLeft; };
    for (thread->changed.wait(lock, isNeeded); !thread->isLeft; thread->changed.wait(lock, isNeeded)) {
        const Call call = thread->call;
        lock.unlock();
        thread->answer = call(*thread);
        lock.lock();
        thread->call = nullptr;
        thread->changed.notify_all();
    }
    lock.unlock();
    OSS_close(thread->device);
    delete[] thread->block;
    lock.lock();
    thread->isClosed = true;
    thread->changed.notify_all();
    const bool isAlone = thread->isAlone;
    lock.unlock();
    if (isAlone) {
        delete thread;
    }
}

/// Signals are the program's own thread's: they end its sleeps.
bool startUnsignalled(OssThread* thread) {
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    bool started = true;
    try {
        std::thread(serve, thread).detach();
    } catch (const std::exception&) {
        started = false;
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return started;
}

} // namespace

OssThread* OSS_start() {
    auto* thread = new (std::nothrow) OssThread; // not plain: it holds a lock
    if (thread != nullptr && !startUnsignalled(thread)) {
        delete thread;
        thread = nullptr;
    }
    return thread;
}

void OSS_callOpen(OssThread* thread, const char* path) {
    thread->path = path;
    make(thread, [](OssThread& own) { return own.device = OSS_open(own.path); });
}

void OSS_callRequest(OssThread* thread, DspRequest request, const std::int32_t* word) {
    thread->request = request;
    thread->hasWord = word != nullptr;
    thread->word = word != nullptr ? *word : 0;
    make(thread, [](OssThread& own) {
        return OSS_request(own.device, own.request, own.hasWord ? &own.word : nullptr);
    });
}

bool OSS_callWrite(OssThread* thread, const std::int16_t* block, std::int32_t samples) {
    if (samples > thread->capacity) {
        auto* const room = allocateArray<std::int16_t>(samples);
        if (room == nullptr) {
            return false;
        }
        delete[] thread->block;
        thread->block = room;
        thread->capacity = samples;
    }
    std::transform(block, block + samples, thread->block,
                   [](std::int16_t sample) { return lowByteFirst(sample); });
    thread->samples = samples;
    make(thread, [](OssThread& own) { return OSS_write(own.device, own.block, own.samples); });
    return true;
}

bool OSS_awaitCall(OssThread* thread, OssDuration limit) {
    std::unique_lock lock(thread->mutex);
    return thread->changed.wait_for(lock, limit, [thread] { return thread->call == nullptr; });
}

OssDuration OSS_callLasts(const OssThread* thread) {
    return std::chrono::duration_cast<OssDuration>(Clock::now() - thread->since);
}

std::int32_t OSS_answer(const OssThread* thread, std::int32_t* word) {
    if (word != nullptr && thread->answer >= 0) {
        *word = thread->word;
    }
    return thread->answer;
}

std::int32_t OSS_device(const OssThread* thread) {
    return thread->device;
}

void OSS_leave(OssThread** handle) {
    constexpr OssDuration closePatience{250};
    OssThread* const thread = *handle;
    *handle = nullptr;
    std::unique_lock lock(thread->mutex);
    const bool isIdle = thread->call == nullptr;
    thread->isLeft = true;
    thread->changed.notify_all();
    thread->isAlone =
        !isIdle || !thread->changed.wait_for(lock, closePatience, [thread] { return thread->isClosed; });
    const bool isAlone = thread->isAlone;
    lock.unlock();
    if (!isAlone) {
        delete thread;
    }
}

} // namespace velm

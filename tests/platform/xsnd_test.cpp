// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The device of these tests is a real stream socket behind "/dev/dsp": only open and ioctl are taken over, so
// that they can be watched; writes, short ones and failing ones included, are the system's own.
#include "audio/sample.h"
#include "foundation/byte_order.h"
#include "foundation/list.h"
#include "platform/xsnd.h"
#include "support/owned.h"

#include <chrono>
#include <csignal>
#include <cstdarg>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

namespace velm::test {
namespace {

/// What the takeover shares with the tests.
struct Device {
    int ends[2] = {-1, -1}; ///< the program's and the listener's
    std::int32_t blockBytes = 8;
    int refused = -1; ///< which request fails
    int flags = 0;
    std::vector<std::string> requests; ///< number and word of each, in hexadecimal
};
Device device;

} // namespace
} // namespace velm::test

// Nothing else in this program opens a file or makes a request.
extern "C" int open(const char* path, int flags, ...) {
    velm::test::device.flags = flags;
    return std::strcmp(path, "/dev/dsp") == 0 ? velm::test::device.ends[0] : -1;
}

extern "C" int ioctl(int, unsigned long request, ...) {
    using velm::test::device;
    va_list rest;
    va_start(rest, request);
    auto* const word = va_arg(rest, std::int32_t*);
    va_end(rest);
    char text[40];
    std::snprintf(text, sizeof text, word == nullptr ? "%lX" : "%lX %d", request,
                  word == nullptr ? 0 : *word);
    device.requests.emplace_back(text);
    if (static_cast<int>(device.requests.size()) - 1 == device.refused) {
        return -1;
    }
    if (request == 0xC0045002) {
        *word = 44099;
    } else if (request == 0xC0045004) {
        *word = device.blockBytes;
    }
    return 0;
}

namespace velm::test {
namespace {

class XsndTest : public testing::Test {
protected:
    void SetUp() override {
        device = Device{};
        ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, device.ends), 0);
        std::signal(SIGPIPE, SIG_DFL);
    }
    void TearDown() override {
        if (sound != nullptr) {
            XSND_delete(&sound);
        } else {
            close(device.ends[0]);
        }
        close(device.ends[1]);
    }

    void openWithBlockOf(std::int32_t samples) {
        device.blockBytes = 2 * samples;
        sound = XSND_new();
        ASSERT_EQ(sound->blockSamples, samples);
    }

    void queue(SAMPLE* sample, const std::vector<std::int32_t>& values) const {
        for (const std::int32_t value : values) {
            SAMPLE_append(sample, value);
        }
        LIST_append(sound->queue, sample);
    }

    /// Opens a device that does not play; its end of the socket stays open for the next one.
    void expectSilence() {
        const int kept = dup(device.ends[0]);
        XSND* silent = XSND_new();
        LIST_append(silent->queue, first);
        SAMPLE_setLength(first, 3);
        for (int frame = 0; frame < 10; ++frame) {
            EXPECT_EQ(XSND_play(silent), 1);
            EXPECT_EQ(XSND_playPart(silent), 0);
        }
        EXPECT_EQ(silent->position, 0);
        EXPECT_EQ(silent->samplesWritten, 0);
        EXPECT_EQ(heard(), std::vector<std::int16_t>{});
        XSND_delete(&silent);
        device.ends[0] = kept;
    }

    /// What has reached the listener.
    static std::vector<std::int16_t> heard() {
        std::vector<std::int16_t> samples(1 << 16);
        const ssize_t bytes = recv(device.ends[1], samples.data(), 2 * samples.size(), MSG_DONTWAIT);
        samples.resize(static_cast<std::size_t>(std::max<ssize_t>(bytes, 0)) / 2);
        for (std::int16_t& sample : samples) {
            sample = lowByteFirst(sample);
        }
        return samples;
    }

    XSND* sound = nullptr;
    const Owned<SAMPLE_delete> first{SAMPLE_new()};
    const Owned<SAMPLE_delete> second{SAMPLE_new()};
};

using Block = std::vector<std::int16_t>;

TEST_F(XsndTest, XSND_flagWordAndXSND_formatTwice) {
    openWithBlockOf(4);
    EXPECT_EQ(device.flags, 0x1401);
    EXPECT_EQ(device.requests, (std::vector<std::string>{"5000", "C0045005 16", "C0045005 16", "C0045003 0",
                                                         "C0045002 44100", "C0045004 0"}));
    EXPECT_EQ(sound->rate, 44099) << "the driver's answer lands in the record";
    EXPECT_EQ(sound->blockSize, 8);
    EXPECT_EQ(std::string{sound->sign} + sound->endian + sound->device, "sl/dev/dsp");
}

TEST_F(XsndTest, BlocksNeverStraddleTwoSamples) {
    openWithBlockOf(4);
    queue(first, {1, 2, 3, 4, 5, 6});
    queue(second, {7, 8, 9, 10});
    EXPECT_EQ(XSND_playPart(sound), 1);
    EXPECT_EQ(heard(), (Block{1, 2, 3, 4}));
    EXPECT_EQ(XSND_playPart(sound), 0);
    EXPECT_EQ(heard(), (Block{5, 6})) << "a tail is a short block";
    EXPECT_EQ(XSND_play(sound), 1);
    EXPECT_EQ(heard(), (Block{7, 8, 9, 10}));
    EXPECT_EQ(sound->queue->count, 1) << "a whole last block leaves an empty tail behind";
    EXPECT_EQ(XSND_play(sound), 0);
    EXPECT_EQ(heard(), Block{});
    EXPECT_EQ(XSND_play(sound), 0);
    EXPECT_EQ(sound->samplesWritten, 10);
    EXPECT_EQ(sound->current, second);
    EXPECT_EQ(first->length, 6) << "the samples are not the queue's";
}

TEST_F(XsndTest, XSND_lowHalfWord) {
    openWithBlockOf(4);
    queue(first, {40000, -32769, 65536});
    queue(first, {});
    EXPECT_EQ(XSND_play(sound), 1);
    first->data[0] = 9; // what is queued is not a copy, and may stand twice
    EXPECT_EQ(XSND_play(sound), 0);
    EXPECT_EQ(heard(), (Block{-25536, 32767, 0, 9, 32767, 0}));
}

TEST_F(XsndTest, ADeviceThatRefusesIsAsGoodAsNone) {
    for (int request = 0; request < 6; ++request) {
        device.requests.clear();
        device.refused = request;
        expectSilence();
        EXPECT_EQ(static_cast<int>(device.requests.size()), request + 1);
    }
    device.refused = -1;
    for (const std::int32_t bytes : {0, 1, -6, (1 << 20) + 2, 0x7FFFFFFE}) {
        device.blockBytes = bytes;
        expectSilence();
    }
    close(device.ends[0]);
    device.ends[0] = -1;
    expectReports(XSND_verbose, 1, "XSND error", [this] { expectSilence(); });
}

TEST_F(XsndTest, ShortAndFailedWritesDoNotStopThePlaying) {
    constexpr std::int32_t blockSamples = 100000;
    openWithBlockOf(blockSamples);
    const timeval patience{0, 1000};
    setsockopt(sound->fd, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
    SAMPLE_setLength(first, 10 * blockSamples);
    LIST_append(sound->queue, first);
    for (int frame = 0; frame < 10; ++frame) {
        XSND_play(sound); // soon the socket takes a part, then nothing
    }
    EXPECT_EQ(sound->position, 10 * blockSamples);
    std::size_t taken = 0;
    for (Block part = heard(); !part.empty(); part = heard()) {
        taken += part.size();
    }
    EXPECT_EQ(sound->samplesWritten, static_cast<std::int32_t>(taken));
    EXPECT_GT(taken, 0U);
    EXPECT_LT(taken, std::size_t{blockSamples} * 10);
}

TEST_F(XsndTest, AVanishedServerDoesNotKill) {
    openWithBlockOf(4);
    queue(first, {1, 2, 3, 4, 5, 6, 7, 8});
    shutdown(device.ends[1], SHUT_RDWR);
    EXPECT_EQ(XSND_play(sound), 1);
    EXPECT_EQ(XSND_play(sound), 1);
    EXPECT_EQ(XSND_play(sound), 0);
    EXPECT_EQ(sound->samplesWritten, 0);
}

TEST_F(XsndTest, ADeviceThatTakesNothingIsGivenUpAndTheFramesGoOn) {
    openWithBlockOf(4);
    const std::vector<char> filler(1 << 20);
    while (send(sound->fd, filler.data(), filler.size(), MSG_DONTWAIT) > 0) {
    }
    queue(first, {1, 2, 3, 4, 5, 6, 7, 8});
    using std::chrono::steady_clock;
    const auto begin = steady_clock::now();
    testing::internal::CaptureStderr();
    EXPECT_EQ(XSND_play(sound), 1);
    EXPECT_GE(steady_clock::now() - begin, std::chrono::seconds(1)) << "a slow device is waited for";
    auto shortest = steady_clock::duration::max();
    for (int frame = 0; frame < 10; ++frame) {
        const auto before = steady_clock::now();
        XSND_play(sound);
        shortest = std::min(shortest, steady_clock::now() - before);
    }
    EXPECT_LT(shortest, std::chrono::milliseconds(5)) << "and then no more";
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "velm4030: playing silent, no answer from \"/dev/dsp\"\n");
    EXPECT_EQ(sound->samplesWritten, 0);
    EXPECT_EQ(sound->queue->count, 0) << "the queue goes on";
}

TEST_F(XsndTest, FailuresAreReported) {
    openWithBlockOf(4);
    expectReports(XSND_verbose, 7, "XSND error", [] {
        EXPECT_EQ(XSND_play(nullptr) + XSND_playPart(nullptr) + XSND_isReady(nullptr, 1), 0);
        EXPECT_EQ(XSND_flush(nullptr), 0);
        EXPECT_EQ(XSND_name(nullptr), nullptr);
        XSND_delete(nullptr);
        expectFailure(1, XSND_new);
    });
    EXPECT_EQ(XSND_isReady(sound, 1), 1);
    EXPECT_STREQ(XSND_name(sound), "");
    LIST_delete(&sound->queue);
    EXPECT_EQ(XSND_play(sound), 0) << "a missing queue is made, and nothing played";
    EXPECT_NE(sound->queue, nullptr);
    EXPECT_EQ(XSND_play(sound), 0);
}

} // namespace
} // namespace velm::test

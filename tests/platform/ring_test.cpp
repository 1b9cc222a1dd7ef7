// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/ring.h"
#include "support/images.h"

#include <array>
#include <cstring>
#include <thread>

namespace velm::test {
namespace {

TEST(RingTest, WhatIsPushedIsTakenInOrderAcrossThreads) {
    constexpr std::uint32_t count = 300000;
    static Ring<std::uint32_t, 64> ring;
    std::thread pusher([] {
        std::array<std::uint32_t, 100> next;
        for (std::uint32_t sent = 0; sent < count;) {
            for (std::uint32_t i = 0; i < next.size(); ++i) {
                next[i] = sent + i;
            }
            sent += ring.push(std::span(next).first(std::min<std::size_t>(next.size(), count - sent)));
            std::this_thread::yield();
        }
    });
    std::array<std::uint32_t, 50> bite;
    std::uint32_t wrong = 0;
    for (std::uint32_t got = 0; got < count; std::this_thread::yield()) {
        const std::uint32_t taken = ring.take(bite);
        for (std::uint32_t i = 0; i < taken; ++i) {
            wrong += bite[i] == got++ ? 0 : 1;
        }
    }
    pusher.join();
    EXPECT_EQ(wrong, 0U);
    EXPECT_EQ(ring.count(), 0U);
}

TEST(RingTest, AFullOneTakesNothingMoreAndLosesNothing) {
    Ring<char, 4> ring;
    EXPECT_EQ(ring.push(std::string_view("abc")), 3U);
    EXPECT_EQ(ring.push(std::string_view("def")), 1U);
    EXPECT_EQ(ring.push(std::string_view("g")), 0U);
    std::array<char, 8> out{};
    EXPECT_EQ(ring.take(out), 4U);
    EXPECT_STREQ(out.data(), "abcd");
    ring.push(std::string_view("hi"));
    ring.drop();
    EXPECT_EQ(ring.take(out), 0U);
}

TEST(RingTest, WhateverIsWrittenOverItBothSidesStayWithinIt) {
    constexpr std::uint32_t capacity = 16;
    struct {
        std::array<std::int16_t, 64> before;
        Ring<std::int16_t, capacity> ring;
        std::array<std::int16_t, 64> after;
    } memory{};
    std::array<std::int16_t, 64> values{};
    values.fill(1);
    Images random(1);
    for (int round = 0; round < 10000; ++round) {
        std::array<unsigned char, sizeof memory.ring> garbage;
        for (unsigned char& byte : garbage) {
            byte = static_cast<unsigned char>(random.number(0, 255));
        }
        std::memcpy(static_cast<void*>(&memory.ring), garbage.data(), round % 2 == 0 ? garbage.size() : 5);
        ASSERT_LE(memory.ring.count(), capacity);
        ASSERT_LE(memory.ring.push(values), capacity);
        ASSERT_LE(memory.ring.take(values), capacity);
        memory.ring.drop();
        ASSERT_EQ(memory.ring.count(), 0U);
        values.fill(1);
    }
    const std::array<std::int16_t, 64> zeros{};
    EXPECT_EQ(memory.before, zeros);
    EXPECT_EQ(memory.after, zeros);
}

} // namespace
} // namespace velm::test

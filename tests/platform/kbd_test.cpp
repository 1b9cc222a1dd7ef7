// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/kbd.h"
#include "platform/key_queue.h"
#include "support/owned.h"

namespace velm::test {
namespace {

int dispatched = 0;

TEST(Kbd, DispatchesTheCurrentKeyAndReportsIndicesOutside) {
    const Owned<KBD_delete> table(KBD_new());
    table->handlers[65] = [] { ++dispatched; };
    table->current = 65;
    KBD_dispatch(table);
    EXPECT_EQ(KBD_current(table), 65);
    table->current = 66;
    KBD_dispatch(table);
    expectReports(KBD_verbose, 3, "KBD error", [&] {
        table->current = -1, KBD_dispatch(table);
        table->current = 256, KBD_dispatch(table);
        KBD_dispatch(nullptr);
    });
    EXPECT_EQ(dispatched, 1);
    EXPECT_EQ(KBD_same(table, table), 1);
    EXPECT_EQ(KBD_same(table, nullptr), 0);
}

class KeyQueueTest : public testing::Test {
protected:
    /// Presses one key after another, all at one time.
    void press(const std::string& keys, std::int64_t micros) {
        for (const char key : keys) {
            pushKey(*queue, {.text = {key}, .keycode = key, .micros = micros});
        }
    }

    /// Polls until nothing waits: the first byte of every press.
    std::string taken(std::int64_t now) {
        std::string keys;
        while (const auto press = takeKey(*queue, now)) {
            keys += press->text[0];
        }
        return keys;
    }

    std::unique_ptr<KeyQueue> queue = std::make_unique<KeyQueue>();
};

TEST_F(KeyQueueTest, KeysComeInOrderAlsoAroundTheRing) {
    for (int round = 0; round < 300; ++round) {
        press("12345678901234567", round);
        ASSERT_EQ(taken(round), "12345678901234567") << round;
    }
}

TEST_F(KeyQueueTest, AnEscapeKeepsItsTurnForHalfASecondAndThenGoesFirst) {
    press("ab\x1B"
          "cd",
          1000000);
    EXPECT_EQ(takeKey(*queue, 1499999)->text[0], 'a');
    EXPECT_TRUE(wantsToLeave(*queue));
    EXPECT_EQ(takeKey(*queue, 1500000)->keycode, 27);
    EXPECT_FALSE(wantsToLeave(*queue));
    EXPECT_EQ(taken(9000000), "bcd");
}

TEST_F(KeyQueueTest, TheCloseButtonGoesFirstAtOnceAndOnce) {
    press("ab", 0);
    queue->closeAsked = true;
    EXPECT_TRUE(wantsToLeave(*queue));
    EXPECT_EQ(taken(0), "\x1B"
                        "ab");
}

TEST_F(KeyQueueTest, AFullQueueDropsWhatComesLastButNoEscape) {
    const std::string crowd(KeyQueue::capacity - 1, 'a');
    press(crowd, 0);
    press("abb\x1B", 0);
    EXPECT_EQ(queue->count, KeyQueue::capacity);
    const std::string kept = taken(0);
    EXPECT_TRUE(kept.starts_with(crowd));
    EXPECT_EQ(kept.substr(crowd.size()), "\x1B");
}

} // namespace
} // namespace velm::test

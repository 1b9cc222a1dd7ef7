// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "support/owned.h"
#include "vector/cursor.h"

namespace velm::test {

TEST(Cursor, WrapsAtBothEnds) {
    const Owned<CURSOR_delete> cursor(CURSOR_new());
    cursor->step = -1;
    CURSOR_advance(cursor);
    EXPECT_EQ(*static_cast<const char*>(CURSOR_current(cursor)), 'M');
    const std::int32_t values[25] = {};
    CURSOR_set(cursor, values, 25, sizeof values[0], 27);
    CURSOR_advance(cursor);
    EXPECT_EQ(CURSOR_current(cursor), &values[2]);
    CURSOR_save(cursor);
    cursor->step = std::numeric_limits<std::int32_t>::max();
    CURSOR_advance(cursor); // 2 + 2147483647 wraps to -2147483647 before the remainder is taken
    EXPECT_EQ(cursor->index, 3);
    CURSOR_restore(cursor);
    EXPECT_EQ(cursor->index, 2);
}

TEST(Cursor, ReportsWhatItCannotWalk) {
    CURSOR empty{.index = 3, .step = 1, .elementSize = 1, .count = 0, .base = nullptr, .savedIndex = 0};
    expectReports(CURSOR_verbose, 4, "CURSOR Error.", [&] {
        CURSOR_advance(&empty), CURSOR_restore(nullptr), expectFailure(1, CURSOR_new);
        EXPECT_EQ(CURSOR_current(&empty), nullptr);
    });
    EXPECT_EQ(empty.index, 3);
}

} // namespace velm::test

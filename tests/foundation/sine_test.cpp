// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/sine.h"
#include "support/owned.h"

#include <numbers>

namespace velm::test {
namespace {

TEST(SineTable, FirstQuarterIsARoundedSine) {
    for (int i = 0; i < SINE_quarter; ++i) {
        if (i != 129 && i != 183) {
            EXPECT_EQ(SINE_entry(i), std::lround(32767 * std::sin(2 * std::numbers::pi * i / 1024))) << i;
        }
    }
}

TEST(SineTable, SINE_tableOddEntries) {
    EXPECT_EQ(SINE_entry(129), 23312);
    EXPECT_EQ(SINE_entry(183), 29535);
}

TEST(SineTable, SINE_mirroredQuarter) {
    for (int i = 0; i < SINE_quarter; ++i) {
        EXPECT_EQ(SINE_entry(511 - i), SINE_entry(i));
        EXPECT_EQ(SINE_entry(512 + i), -SINE_entry(i));
        EXPECT_EQ(SINE_entry(-1 - i), -SINE_entry(i)) << "an index below 0 wraps";
    }
}

TEST(SineCursor, PhaseAndOffsetWrapBothWays) {
    const Owned<SINE_delete> cursor(SINE_new());
    SINE_advance(cursor);
    EXPECT_EQ(SINE_next(cursor), 3) << "by default the phase moves by 1, the offset by 2";
    EXPECT_EQ(SINE_at(cursor, 5), 5);
    EXPECT_EQ(cursor->offset, 0);
    SINE_setup(cursor, 1024, 1010, 25, 0, 16);
    SINE_advance(cursor);
    EXPECT_EQ(cursor->phase, 11);
    cursor->speed = -3000;
    SINE_advance(cursor);
    EXPECT_EQ(cursor->phase, 83);
    SINE_setPhase(cursor, -1);
    EXPECT_EQ(cursor->phase, 1023);
    EXPECT_EQ(SINE_at(cursor, 0), 0);
    SINE_setOffset(cursor, 1020);
    EXPECT_EQ(SINE_next(cursor), 12);
    EXPECT_EQ(cursor->offset, 1036) << "only the index is reduced";
    EXPECT_EQ(SINE_setOffset(cursor, -1), 1023);
    SINE_setLength(cursor, 100);
    EXPECT_EQ(cursor->index, 99);
    const Owned<SINE_delete> clone(SINE_clone(cursor));
    EXPECT_EQ(clone->length, 100);
    EXPECT_EQ(clone->offset, -1);
    EXPECT_EQ(clone->index, 0) << "a copy leaves the index alone";
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    SINE_setup(cursor, most, most - 1, 10, 0, 0);
    SINE_advance(cursor);
    EXPECT_EQ(cursor->phase, 7) << "the sum has wrapped, which is two more than the period";
    EXPECT_EQ(SINE_setOffset(cursor, most), 5);
}

TEST(SineCursor, WithoutAPeriodItStandsStill) {
    const Owned<SINE_delete> cursor(SINE_new());
    SINE_setup(cursor, 100, 40, 1, 30, 2);
    SINE_setLength(cursor, 0);
    SINE_setLength(cursor, -1);
    EXPECT_EQ(cursor->length, 0);
    SINE_advance(cursor);
    EXPECT_EQ(SINE_next(cursor) + SINE_setOffset(cursor, 9) + SINE_at(cursor, 8), 0);
    EXPECT_EQ(cursor->phase, 40);
    EXPECT_EQ(cursor->offset, 30);
    EXPECT_EQ(cursor->index, 70);
}

TEST(SineCursor, SINE_setPhaseReachesLength) {
    SINE cursor = {.length = 1024, .index = 7, .phase = 0, .speed = 0, .offset = 0, .offsetStep = 0};
    SINE_setPhase(&cursor, -2048);
    EXPECT_EQ(cursor.phase, 1024);
    EXPECT_EQ(cursor.index, 0);
}

TEST(SineCursor, SINE_errorIsSilent) {
    expectReports(SINE_verbose, 0, "", [] { EXPECT_EQ(SINE_next(nullptr) + SINE_at(nullptr, 1), 0); });
}

TEST(SineTable, SINE_tableIsFlat) {
    const Owned<SINE_tableDelete> table(SINE_tableNew());
    ASSERT_EQ(table->size, 1024);
    SINE_tableSetSize(table, 50);
    EXPECT_EQ(table->size, 50);
    for (int i = 0; i < 50; ++i) {
        EXPECT_EQ(table->values[i], 0);
    }
    expectReports(SINE_verbose, 3, "SINE error", [&] {
        SINE_tableSetSize(table, 0);
        expectFailure(1, SINE_tableNew), expectFailure(2, SINE_tableNew);
    });
}

} // namespace
} // namespace velm::test

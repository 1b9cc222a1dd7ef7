// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/sine.h"
#include "support/allocation.h"
#include "support/capture_stdout.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
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
    SINE* cursor = SINE_new();
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
    SINE* clone = SINE_clone(cursor);
    EXPECT_EQ(clone->length, 100);
    EXPECT_EQ(clone->offset, -1);
    EXPECT_EQ(clone->index, 0) << "a copy leaves the index alone";
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    SINE_setup(cursor, most, most - 1, 10, 0, 0);
    SINE_advance(cursor);
    EXPECT_EQ(cursor->phase, 7) << "the sum has wrapped, which is two more than the period";
    EXPECT_EQ(SINE_setOffset(cursor, most), 5);
    SINE_delete(&cursor);
    SINE_delete(&clone);
}

TEST(SineCursor, WithoutAPeriodItStandsStill) {
    SINE* cursor = SINE_new();
    SINE_setup(cursor, 100, 40, 1, 30, 2);
    SINE_setLength(cursor, 0);
    SINE_setLength(cursor, -1);
    EXPECT_EQ(cursor->length, 0);
    SINE_advance(cursor);
    EXPECT_EQ(SINE_next(cursor) + SINE_setOffset(cursor, 9) + SINE_at(cursor, 8), 0);
    EXPECT_EQ(cursor->phase, 40);
    EXPECT_EQ(cursor->offset, 30);
    EXPECT_EQ(cursor->index, 70);
    SINE_delete(&cursor);
}

TEST(SineCursor, SINE_setPhaseReachesLength) {
    SINE cursor = {.length = 1024, .index = 7, .phase = 0, .speed = 0, .offset = 0, .offsetStep = 0};
    SINE_setPhase(&cursor, -2048);
    EXPECT_EQ(cursor.phase, 1024);
    EXPECT_EQ(cursor.index, 0);
}

TEST(SineCursor, SINE_errorIsSilent) {
    SINE_verbose = 1;
    EXPECT_EQ(printedBy([] { EXPECT_EQ(SINE_next(nullptr) + SINE_at(nullptr, 1), 0); }), "");
    SINE_verbose = 0;
}

TEST(SineTable, SINE_tableIsFlat) {
    SINE_TABLE* table = SINE_tableNew();
    ASSERT_EQ(table->size, 1024);
    SINE_tableSetSize(table, 50);
    EXPECT_EQ(table->size, 50);
    for (int i = 0; i < 50; ++i) {
        EXPECT_EQ(table->values[i], 0);
    }
    SINE_verbose = 1;
    EXPECT_EQ(printedBy([table] { SINE_tableSetSize(table, 0); }), "SINE error\n");
    for (const int nth : {1, 2}) {
        const FailingAllocation failure(nth);
        EXPECT_EQ(printedBy([] { EXPECT_EQ(SINE_tableNew(), nullptr); }), "SINE error\n");
    }
    SINE_verbose = 0;
    SINE_tableDelete(&table);
}

} // namespace
} // namespace velm::test

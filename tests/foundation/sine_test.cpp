// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/sine.h"
#include "support/capture_stdout.h"

#include <cmath>
#include <gtest/gtest.h>
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
    EXPECT_EQ(SINE_entry(256), 32766);
    EXPECT_EQ(SINE_entry(511), 0);
    EXPECT_EQ(SINE_entry(512), 0);
    EXPECT_EQ(SINE_entry(768), -32766);
    EXPECT_EQ(SINE_entry(1023), 0);
    EXPECT_EQ(SINE_entry(-1), 0);
    for (int i = 0; i < SINE_quarter; ++i) {
        EXPECT_EQ(SINE_entry(511 - i), SINE_entry(i));
        EXPECT_EQ(SINE_entry(512 + i), -SINE_entry(i));
    }
}

TEST(SineCursor, PhaseAndOffsetWrapBothWays) {
    SINE* cursor = SINE_new();
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
    SINE_setLength(cursor, 0);
    SINE_advance(cursor);
    EXPECT_EQ(SINE_next(cursor), 99) << "a cursor without a period stands still";
    SINE_delete(&cursor);
    SINE_delete(&clone);
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
    SINE_verbose = 0;
    SINE_tableDelete(&table);
}

} // namespace
} // namespace velm::test

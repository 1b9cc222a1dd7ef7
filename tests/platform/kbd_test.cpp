// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/kbd.h"
#include "support/capture_stdout.h"

namespace velm::test {
namespace {

int dispatched = 0;

TEST(Kbd, DispatchesTheCurrentKeyAndReportsIndicesOutside) {
    KBD* table = KBD_new();
    table->handlers[65] = [] { ++dispatched; };
    table->current = 65;
    KBD_dispatch(table);
    EXPECT_EQ(dispatched, 1);
    EXPECT_EQ(KBD_current(table), 65);
    table->current = 66;
    KBD_dispatch(table);
    KBD_verbose = 1;
    for (const std::int32_t outside : {-1, 256}) {
        table->current = outside;
        EXPECT_EQ(printedBy([table] { KBD_dispatch(table); }), "KBD error\n");
    }
    EXPECT_EQ(printedBy([] { KBD_dispatch(nullptr); }), "KBD error\n");
    KBD_verbose = 0;
    EXPECT_EQ(dispatched, 1);
    EXPECT_EQ(KBD_same(table, table), 1);
    EXPECT_EQ(KBD_same(table, nullptr), 0);
    KBD_delete(&table);
    EXPECT_EQ(table, nullptr);
}

} // namespace
} // namespace velm::test

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/owned.h"

#include <gtest/gtest.h>

namespace velm::test {
namespace {

std::int32_t alive = 0;
std::int32_t reports = 0;

struct THING {
    std::int32_t size = 0;
};

THING* newThing() {
    ++alive;
    return new THING{};
}

void deleteThing(THING** handle) {
    if (handle == nullptr || *handle == nullptr) {
        ++reports;
        return;
    }
    --alive;
    delete *handle;
    *handle = nullptr;
}

using Thing = Owned<deleteThing>;
static_assert(!std::is_copy_constructible_v<Thing>);

TEST(Owned, DeletesItsRecordOnceWhoeverHoldsItLast) {
    {
        Thing first(newThing(), [](THING& made) { made.size = 7; });
        Thing second(newThing());
        EXPECT_EQ(first->size, 7);
        second = std::move(first);
        EXPECT_EQ((*second).size, 7);
        Thing third(std::move(second));
        EXPECT_EQ(alive, third.get()->size == 7 ? 2 : 0);
        third = Thing(newThing());
        EXPECT_EQ(third->size, 0);
    }
    EXPECT_EQ(alive, 0);
    EXPECT_EQ(reports, 0) << "an empty owner has nothing to delete";
}

TEST(Owned, HandsItsRecordOutAndTakesOneThroughItsHandle) {
    Thing thing(nullptr, [](THING&) { FAIL() << "there is nothing to prepare"; });
    EXPECT_EQ(thing, nullptr);
    *thing.handle() = newThing();
    THING* taken = thing.release();
    EXPECT_EQ(thing, nullptr);
    EXPECT_EQ(alive, 1);
    deleteThing(&taken);
    EXPECT_EQ(reports, 0);
}

} // namespace
} // namespace velm::test

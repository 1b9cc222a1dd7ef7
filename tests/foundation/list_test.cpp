// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/list.h"
#include "support/owned.h"

namespace velm::test {
namespace {

char letters[] = "abcdefgh";

LIST* listOf(const char* text) {
    LIST* list = LIST_new();
    for (; *text != '\0'; ++text) {
        LIST_append(list, &letters[*text - 'a']);
    }
    return list;
}

std::string textOf(const LIST* list) {
    std::string text;
    for (std::int32_t i = 0; i < list->count; ++i) {
        text += *static_cast<const char*>(list->items[i]);
    }
    return text;
}

using List = Owned<LIST_delete>;

class ListTest : public testing::Test {
protected:
    const List list{listOf("abc")};
};

TEST_F(ListTest, CapacityDoublesFromTwo) {
    List grown(LIST_new());
    std::string capacities;
    for (int i = 0; i < 9; ++i) {
        capacities += std::to_string(grown->capacity) + " ";
        LIST_append(grown, letters);
    }
    EXPECT_EQ(capacities, "2 2 2 4 4 8 8 8 8 ");
    EXPECT_EQ(grown->capacity, 16);
    LIST_delete(grown.handle());
    EXPECT_EQ(grown, nullptr);
}

TEST_F(ListTest, InsertsAndRemovesAtBothEndsAndBetween) {
    LIST_insert(list, &letters[3], 0);
    LIST_insert(list, &letters[4], 4);
    LIST_insert(list, &letters[5], 2);
    EXPECT_EQ(textOf(list), "dafbce");
    LIST_remove(list, 0);
    LIST_remove(list, 4);
    EXPECT_EQ(textOf(list), "afbc");
    EXPECT_EQ(list->items[4], nullptr) << "the slot that a removal frees is cleared";
    LIST_removeRange(list, 1, 3);
    EXPECT_EQ(textOf(list), "ac");
    EXPECT_EQ(list->items[3], &letters[2]) << "the slots that a range frees are not";
    EXPECT_EQ(LIST_pop(list), &letters[2]);
    EXPECT_EQ(textOf(list), "a");
    LIST_setCount(list, 9);
    EXPECT_EQ(list->capacity, 9);
    LIST_setCount(list, 1);
    EXPECT_EQ(textOf(list), "a");
    EXPECT_EQ(list->capacity, 9) << "a list never shrinks by itself";
}

TEST_F(ListTest, RangesMoveBetweenLists) {
    const List other(listOf("defg"));
    LIST_insertRange(other, list, 1, 3, 2);
    EXPECT_EQ(textOf(list), "abefc");
    const List slice(LIST_slice(list, 1, 4));
    EXPECT_EQ(textOf(slice), "bef");
    const List clone(LIST_clone(list));
    EXPECT_EQ(LIST_equal(list, clone), 1);
    LIST_set(clone, 4, letters);
    EXPECT_EQ(LIST_equal(list, clone), 0);
    EXPECT_EQ(LIST_indexOf(clone, &letters[4]), 2);
    EXPECT_EQ(LIST_indexOf(clone, &letters[7]), -1);
    LIST_setCount(clone, 4);
    EXPECT_EQ(LIST_equal(list, clone) + LIST_equal(clone, list), 0) << "only the counts differ";
}

TEST_F(ListTest, LIST_insertRangeTakesSpare) {
    const List other(listOf("abcdefgh"));
    LIST_setCount(other, 4);
    LIST_insertRange(list, other, 1, 3, 1);
    LIST_insertRange(list, other, 0, 1, 6); // at the end nothing else moves
    LIST_setCount(other, 8);
    EXPECT_EQ(textOf(other), "abcbcdae") << "the fifth slot has moved twice";
    LIST_setCount(other, 5);
    LIST_insertRange(list, other, 0, 3, 0); // full to the brim: no slot is left for the spare one
    EXPECT_EQ(textOf(other), "abcabcbc");
}

TEST_F(ListTest, LIST_insertRangeMeetsItself) {
    const struct {
        const char* before;
        std::int32_t from, to, at;
        const char* after;
    } cases[] = {{"abcde", 0, 2, 3, "abcabde"},   {"abcde", 0, 3, 1, "aabcbcde"},
                 {"defg", 2, 4, 0, "dedefg"},     {"abcde", 1, 4, 0, "aaaabcde"},
                 {"abcdef", 4, 6, 1, "acdbcdef"}, {"abcd", 1, 3, 4, "abcdbc"}};
    for (const auto& [before, from, to, at, after] : cases) {
        const List self(listOf(before));
        LIST_insertRange(self, self, from, to, at);
        EXPECT_EQ(textOf(self), after) << before << " " << from << " to " << to << " at " << at;
    }
}

TEST_F(ListTest, ReportsWhatIsOutsideAndChangesNothing) {
    const List empty(LIST_new());
    LIST* none = nullptr;
    expectReports(LIST_verbose, 14, "LIST error", [&] {
        for (const void* missing : {LIST_get(list, 3), LIST_get(list, -1), LIST_pop(empty)}) {
            EXPECT_EQ(missing, nullptr);
        }
        EXPECT_EQ(LIST_indexOf(list, nullptr), -1);
        EXPECT_EQ(LIST_setCapacity(list, 2), 0);
        EXPECT_EQ(LIST_slice(list, 0, 4), nullptr);
        LIST_delete(nullptr), LIST_delete(&none);
        LIST_setCount(list, -1), LIST_set(list, 3, letters);
        LIST_insert(list, letters, 4), LIST_insert(list, letters, -1);
        LIST_remove(nullptr, 0), LIST_removeRange(list, 2, 2);
    });
    EXPECT_EQ(textOf(list), "abc");
    EXPECT_EQ(list->items[3], nullptr);
}

TEST_F(ListTest, RunningOutOfMemoryKeepsTheElements) {
    LIST_append(list, &letters[3]);
    {
        const FailingAllocation growth(1);
        LIST_append(list, &letters[4]);
    }
    EXPECT_EQ(textOf(list), "abcd");
    expectReports(LIST_verbose, 2, "LIST error",
                  [] { expectFailure(1, LIST_new), expectFailure(2, LIST_new); });
}

TEST(Identity, WordsArePaddedWithSpaces) {
    EXPECT_STREQ(LIST_identity.module, "LIST    ");
    EXPECT_STREQ(LIST_identity.fourth, "C       ");
}

} // namespace
} // namespace velm::test

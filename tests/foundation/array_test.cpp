// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/array.h"
#include "support/owned.h"

namespace velm::test {
namespace {

using Array = Owned<ARRAY_delete>;

/// An array of the words, each of three letters.
ARRAY* arrayOf(std::initializer_list<const char*> words) {
    ARRAY* array = ARRAY_new();
    ARRAY_setElementSize(array, 3);
    for (const char* word : words) {
        ARRAY_push(array, word);
    }
    return array;
}

std::string textOf(const ARRAY* array) {
    const std::unique_ptr<char[]> text(ARRAY_toText(array));
    return text.get();
}

TEST(Array, GrowsInsertsAndRemovesAsItsTextSays) {
    const Array array(arrayOf({"one", "two"}));
    EXPECT_EQ(array->capacity, 2);
    ARRAY_push(array, "six");
    EXPECT_EQ(array->capacity, 4);
    ARRAY_insert(array, "0th", 0);
    ARRAY_insert(array, array->data + 3, 4); // "one" itself, from a buffer that has to grow
    ARRAY_insert(array, array->data + 9, 1); // "six", which moves up meanwhile
    EXPECT_EQ(textOf(array), "ARRAY{\n0thsixonetwosixone\n}\n");
    EXPECT_EQ(array->capacity, 8);
    EXPECT_EQ(ARRAY_indexOf(array, "one"), 2);
    EXPECT_EQ(ARRAY_indexOf(array, "onE"), -1);
    EXPECT_EQ(ARRAY_equalAt(array, "one", 5) + ARRAY_equalAt(array, "one", 4), 1);
    ARRAY_deleteAt(array, 5);
    ARRAY_removeRange(array, 0, 2);
    ARRAY_set(array, "ONE", 0);
    char word[4] = "";
    ARRAY_get(array, word, 1);
    EXPECT_STREQ(word, "two");
    const std::unique_ptr<std::uint8_t[]> last(ARRAY_pop(array));
    EXPECT_EQ(std::string(last.get(), last.get() + 3), "six");
    EXPECT_EQ(textOf(array), "ARRAY{\nONEtwo\n}\n");
    ARRAY_clear(array);
    EXPECT_EQ(std::count(array->data, array->data + 6, 0), 6);
    EXPECT_EQ(textOf(array), "ARRAY{\n\n}\n");
    ARRAY_push(array, "new");
    ARRAY_setElementSize(array, 500);
    EXPECT_EQ(array->count, 0);
    EXPECT_EQ(std::count(array->data, array->data + 500 * 8, 0), 500 * 8);
}

TEST(Array, ARRAY_copyCountsBytesAndARRAY_sliceIsEmptyAndARRAY_insertRangeOnlyChecks) {
    const Array src(arrayOf({"abc", "def", "ghi", "jkl"}));
    const Array dst(arrayOf({"...", "..."}));
    ARRAY_copyInto(src, dst);
    EXPECT_EQ(textOf(dst), "ARRAY{\nab....\n}\n");
    const Array slice(ARRAY_slice(src, 1, 3));
    EXPECT_EQ(slice->count, 0);
    EXPECT_EQ(slice->elementSize, 4U);
    expectReports(ARRAY_verbose, 3, "ARRAY error", [&] {
        ARRAY_insertRange(src, dst, 1, 3, 0); // is silent
        ARRAY_insertRange(src, dst, 2, 5, 0), ARRAY_insertRange(src, dst, 1, 3, 3);
        EXPECT_EQ(ARRAY_slice(src, 3, 3), nullptr);
    });
    EXPECT_EQ(textOf(dst), "ARRAY{\nab....\n}\n");
    ARRAY_setElementSize(dst, 0); // elements of no bytes have none to copy
    ARRAY_push(dst, ""), ARRAY_push(dst, ""), ARRAY_push(dst, "");
    ARRAY_copyInto(dst, src), ARRAY_copyInto(src, dst);
    EXPECT_EQ(textOf(src), "ARRAY{\nabcdefghijkl\n}\n");
}

TEST(Array, ARRAY_nothingEqualsNothing) {
    const Array array(arrayOf({"abc", "def", "ghi"}));
    const Array clone(ARRAY_clone(array));
    expectReports(ARRAY_verbose, 1, "ARRAY error", [&] {
        EXPECT_EQ(ARRAY_equal(nullptr, nullptr) + ARRAY_equal(array, array) + ARRAY_equal(array, clone), 3);
        EXPECT_EQ(ARRAY_equal(array, nullptr), 0);
    });
    ARRAY_set(clone, "ghI", 2);
    EXPECT_EQ(ARRAY_equal(array, clone), 0);
    ARRAY_deleteAt(clone, 2);
    EXPECT_EQ(ARRAY_equal(array, clone) + ARRAY_equal(clone, array), 0);
}

TEST(Array, ReportsWhatIsOutsideAndChangesNothing) {
    const Array array(arrayOf({"abc", "def"}));
    const Array empty(ARRAY_new());
    char word[4] = "";
    expectReports(ARRAY_verbose, 19, "ARRAY error", [&] {
        ARRAY_push(array, nullptr), ARRAY_insert(array, "xyz", 3), ARRAY_set(array, "xyz", 2);
        ARRAY_get(array, word, -1), ARRAY_get(array, nullptr, 0), ARRAY_deleteAt(array, 2);
        ARRAY_removeRange(array, 1, 3), ARRAY_clear(nullptr), ARRAY_copyInto(array, nullptr);
        EXPECT_EQ(ARRAY_indexOf(array, nullptr) + ARRAY_equalAt(array, "xyz", 2), -1);
        ARRAY_delete(nullptr);
        expectFailure(9, [&] { return ARRAY_pop(empty); });
        expectFailure(1, ARRAY_new), expectFailure(2, ARRAY_new);
        expectFailure(1, [&] { return ARRAY_push(array, "xyz"), nullptr; });
        expectFailure(1, [&] { return ARRAY_setElementSize(array, 9), ARRAY_toText(nullptr); });
        expectFailure(3, [&] { return ARRAY_clone(array); });
    });
    EXPECT_EQ(textOf(array) + word, "ARRAY{\nabcdef\n}\n");
}

TEST(Array, ARRAY_selfTestKeepsTexts) {
    const std::string done = "done!\nARRAY{\n";
    const auto test = [] { EXPECT_EQ(keptBy(ARRAY_selfTest), 3); };
    EXPECT_EQ(printedBy(test), "Creation of new ARRAY...done!\nSetting size of element...done!\n"
                               "Pushing 4 elements..." +
                                   done +
                                   "VELM arrayVELM array\n}\n\n"
                                   "Inserting 1 element at 0..." +
                                   done +
                                   "HelloVELM arrayVELM array\n}\n\n"
                                   "Deleting 1 element at 2..." +
                                   done + "HelloVELM VELM array\n}\n\n");
    const FailingAllocation failure(1);
    EXPECT_EQ(printedBy(ARRAY_selfTest), "Creation of new ARRAY...failed\n");
}

} // namespace
} // namespace velm::test

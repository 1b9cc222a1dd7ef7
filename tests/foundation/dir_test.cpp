// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/dir.h"
#include "foundation/file.h"
#include "foundation/list.h"
#include "support/files.h"
#include "support/owned.h"

#include <dirent.h>

namespace velm::test {
namespace {

TEST(Dir, DIR_deleteKeepsTheNames) {
    const TemporaryFolder folder;
    std::vector<std::string> expected = {".", "..", "with a blank", std::string(200, 'x')};
    for (int i = 0; i < 3000; ++i) {
        expected.push_back("entry " + std::to_string(i));
    }
    for (std::size_t i = 2; i < expected.size(); ++i) {
        std::ofstream(folder / expected[i]);
    }
    DIR* dir = DIR_new();
    ASSERT_EQ(DIR_read(dir, folder.path.c_str()), 1);
    expectReports(DIR_verbose, 6, "DIR error", [&] {
        for (const std::string& path : {folder / "missing", folder / "entry 0", std::string()}) {
            EXPECT_EQ(DIR_read(dir, path.c_str()), 0) << path;
        }
        EXPECT_EQ(DIR_read(dir, nullptr) + DIR_read(nullptr, "."), 0);
        const FailingAllocation third(3);
        EXPECT_EQ(DIR_read(dir, folder.path.c_str()), 0);
    });
    LIST* names = dir->names;
    auto* stream = static_cast<::DIR*>(dir->handle);
    DIR_delete(&dir);
    EXPECT_EQ(dir, nullptr);
    std::vector<std::string> read;
    for (std::int32_t i = 0; i < names->count; ++i) {
        auto* name = static_cast<char*>(LIST_get(names, i));
        read.emplace_back(name);
        delete[] name;
    }
    std::sort(read.begin(), read.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(read, expected);
    LIST_delete(&names);
    closedir(stream);
}

TEST(Dir, DIR_sameNeverComparesAndFILE_sameNeverCompares) {
    DIR* dir = DIR_new();
    DIR other{};
    FILE* file = FILE_new();
    FILE another;
    EXPECT_EQ(DIR_same(dir, &other) + DIR_isValid(dir), 2);
    EXPECT_EQ(FILE_same(file, &another) + FILE_isValid(file), 2);
    EXPECT_EQ(std::string(DIR_getName(dir)) + FILE_getName(file), "");
    LIST_delete(&dir->names);
    DIR_delete(&dir), FILE_delete(&file);
    expectReports(DIR_verbose, 6, "DIR error", [&] {
        EXPECT_EQ(DIR_same(dir, &other) + DIR_same(&other, dir) + DIR_isValid(dir), 0);
        EXPECT_EQ(DIR_read(&other, "."), 0) << "without a list";
        DIR_delete(&dir);
        expectFailure(1, DIR_new);
    });
    expectReports(FILE_verbose, 5, "FILE error", [&] {
        EXPECT_EQ(FILE_same(file, &another) + FILE_same(&another, file) + FILE_isValid(file), 0);
        FILE_delete(&file);
        expectFailure(1, FILE_new);
    });
}

} // namespace
} // namespace velm::test

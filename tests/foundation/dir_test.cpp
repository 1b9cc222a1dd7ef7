// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/dir.h"
#include "support/capture_stdout.h"

#include <algorithm>
#include <cstdlib>
#include <dirent.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace velm::test {
namespace {

TEST(Dir, DIR_deleteKeepsTheNames) {
    std::string folder = std::filesystem::temp_directory_path() / "velm-dir-XXXXXX";
    ASSERT_NE(mkdtemp(folder.data()), nullptr);
    std::vector<std::string> expected = {".", "..", "with a blank", std::string(200, 'x')};
    for (int i = 0; i < 3000; ++i) {
        expected.push_back("entry " + std::to_string(i));
    }
    for (std::size_t i = 2; i < expected.size(); ++i) {
        std::ofstream(folder + "/" + expected[i]);
    }
    DIR* dir = DIR_new();
    ASSERT_EQ(DIR_read(dir, folder.c_str()), 1);
    EXPECT_EQ(DIR_read(dir, (folder + "/missing").c_str()), 0);
    LIST* names = dir->names;
    auto* stream = static_cast<::DIR*>(dir->handle);
    EXPECT_STREQ(DIR_getName(dir), "");
    EXPECT_EQ(DIR_same(dir, dir) + DIR_isValid(dir), 2);
    DIR_delete(&dir);
    EXPECT_EQ(dir, nullptr);
    DIR_verbose = 1;
    EXPECT_EQ(printedBy([] { EXPECT_EQ(DIR_isValid(nullptr) + DIR_same(nullptr, nullptr), 0); }),
              "DIR error\nDIR error\n");
    DIR_verbose = 0;

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
    std::filesystem::remove_all(folder);
}

} // namespace
} // namespace velm::test

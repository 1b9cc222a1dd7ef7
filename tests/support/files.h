// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Files of a test's own, in a folder that goes with all that is in it.
//
//     const TemporaryFolder folder;
//     ASSERT_EQ(IMG_writePPM(img, (folder / "a.ppm").c_str()), 1);
//     EXPECT_EQ(contents(folder / "a.ppm").substr(0, 2), "P6");
#pragma once

#include "support/test.h"

namespace velm::test {

class TemporaryFolder {
public:
    /// Its name begins like this; names with blanks are for those who quote them.
    explicit TemporaryFolder(const std::string& name = "velm-")
        : path(std::filesystem::temp_directory_path() / (name + "XXXXXX")) {
        if (mkdtemp(path.data()) == nullptr) {
            std::abort();
        }
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string operator/(const std::string& file) const { return path + "/" + file; }

    std::string path;
};

/// All bytes of a file.
inline std::string contents(const std::string& path) {
    std::ostringstream all;
    all << std::ifstream(path, std::ios::binary).rdbuf();
    return all.str();
}

} // namespace velm::test

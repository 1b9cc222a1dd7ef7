// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The finished program on a real X server, and what a test can see of it.
//
//     TEST_F(RunningDemo, LeavesOnEscape) {
//         waitForScene();
//         session->press("Escape");
//         EXPECT_EQ(demo.waitForExit(), 0);
//     }
#pragma once

#include "process.h"
#include "x11_session.h"

#include <optional>
#include <unistd.h>

namespace velm::test {

/// One picture that the program sent to its window.
struct Put {
    std::uint32_t brightest; ///< the largest of its pixels
    double milliseconds;     ///< since the process began
    double worked;           ///< those of them in which it had a processor
};

/// The finished program, started on a server of its own with the spy preloaded.
class RunningDemo : public testing::Test {
protected:
    /// With more variables for the demo's environment.
    explicit RunningDemo(Environment more = {}) : additions(std::move(more)) {}

    void TearDown() override { std::filesystem::remove(spyLog); }

    /// Every picture that the program has sent so far.
    [[nodiscard]] std::vector<Put> puts() const {
        std::ifstream log(spyLog);
        std::vector<Put> all;
        std::string word;
        double milliseconds = 0;
        double worked = 0;
        while (log >> word >> milliseconds >> worked) {
            all.push_back({static_cast<std::uint32_t>(std::stoul(word, nullptr, 16)), milliseconds, worked});
        }
        return all;
    }

    /// Waits until the demo runs its scene and has the keyboard.
    void waitForScene() {
        session->movePointer(128, 128);
        ASSERT_TRUE(eventually([this] { return puts().size() > 60; })) << demo.errors();
    }

    /// Waits until no picture comes any more.
    void awaitStandstill() {
        std::size_t before = 0;
        ASSERT_TRUE(eventually([&] {
            const std::size_t earlier = before;
            before = puts().size();
            return earlier == before && (usleep(300000), puts().size() == before);
        })) << "pictures still come";
    }

    void pause() {
        session->press("p");
        awaitStandstill();
    }

    Environment additions;
    XServer server{"24"};
    std::optional<Session> session{server.display()};
    std::string spyLog = temporaryFile();
    Child demo{{VELM_PROGRAM}, spied(server.display(), spyLog, additions)};
};

} // namespace velm::test

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

#include <csignal>
#include <optional>
#include <unistd.h>

namespace velm::test {

/// The finished program, started on a server of its own with the spy preloaded.
class RunningDemo : public testing::Test {
protected:
    /// With more variables for the demo's environment.
    explicit RunningDemo(Environment more = {}) : additions(std::move(more)) {}

    void TearDown() override { std::filesystem::remove(spyLog); }

    /// The largest pixel of every picture that the program has sent so far, in hexadecimal.
    [[nodiscard]] std::vector<std::string> puts() const {
        std::ifstream log(spyLog);
        return {std::istream_iterator<std::string>(log), {}};
    }

    /// Waits until the demo runs its scene and has the keyboard.
    void waitForScene() {
        session->movePointer(128, 128);
        ASSERT_TRUE(eventually([this] { return puts().size() > 60; })) << demo.errors();
    }

    /// The demo once more, after the one before has ended.
    [[nodiscard]] Child anotherDemo() const {
        std::filesystem::resize_file(spyLog, 0);
        return {{VELM_PROGRAM}, spied(server.display(), spyLog, additions)};
    }

    /// Waits until no picture comes any more.
    void awaitStandstill() const {
        ASSERT_TRUE(standsStill(demo, [this] { return puts().size(); })) << "pictures still come";
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

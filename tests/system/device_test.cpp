// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The finished program with sound devices that block or lie.
#include "running_demo.h"

namespace velm::test {
namespace {

constexpr const char* silent = "velm4030: playing silent, no answer from \"/dev/dsp\"\n";

class FaultyDevice : public RunningDemo {
protected:
    explicit FaultyDevice(const std::string& fault)
        : RunningDemo({{"LD_PRELOAD", VELM_X11_SPY ":" VELM_FAULTY_DEVICE}, {"VELM_DEVICE", fault}}) {}

    /// The picture moves, `said` is all that was said, memory is as ever, and Escape leaves.
    void expectOnlySilence(const std::string& said) {
        waitForScene();
        EXPECT_TRUE(demo.isRunning());
        EXPECT_EQ(demo.errors(), said);
        EXPECT_LT(demo.peakKilobytes(), (VELM_IS_SANITIZED ? 512 : 48) * 1024);
        session->press("Escape");
        EXPECT_EQ(demo.waitForExit(), 0);
    }
};

class DeviceThatNeverOpens : public FaultyDevice {
protected:
    DeviceThatNeverOpens() : FaultyDevice("closed") {}
};

TEST_F(DeviceThatNeverOpens, CostsTheSoundAlone) {
    expectOnlySilence(silent);
}

class DeviceThatHangs : public FaultyDevice {
protected:
    DeviceThatHangs() : FaultyDevice("hanging") {}

    /// Presses Escape while the device hangs; false when it was given up before the program left.
    bool leavesBeforeItIsGivenUp(Child& program) {
        EXPECT_TRUE(eventually([this] { return puts().size() > 33; }));
        const bool hangs = standsStill(program, [this] { return puts().size(); });
        session->press("Escape");
        EXPECT_EQ(program.waitForExit(), 0);
        return hangs && program.errors().empty();
    }
};

TEST_F(DeviceThatHangs, CostsTheSoundAlone) {
    expectOnlySilence(silent);
}

TEST_F(DeviceThatHangs, KeepsNobodyFromLeaving) {
    session->movePointer(128, 128);
    bool left = leavesBeforeItIsGivenUp(demo);
    for (int start = 1; start < 5 && !left; ++start) { // on a busy machine the key may come late
        Child again = anotherDemo();
        left = leavesBeforeItIsGivenUp(again);
    }
    EXPECT_TRUE(left);
}

class DeviceWithHugeBlocks : public FaultyDevice {
protected:
    DeviceWithHugeBlocks() : FaultyDevice("huge") {}
};

TEST_F(DeviceWithHugeBlocks, CostsTheSoundAlone) {
    expectOnlySilence("");
}

} // namespace
} // namespace velm::test

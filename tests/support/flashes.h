// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// How often a picture flashes: pairs of opposite changes of relative luminance by 0.1 or more, the darker
// side below 0.8, over a quarter of the picture, on averages of blocks of 8 by 8 pixels (the general flash of
// WCAG 2.3.1).
//
//     FlashMeter meter;
//     headless.onFrame = [&meter](const IMG& frame) { meter.frame(frame); };
//     EXPECT_LE(meter.worst(60).flashes, 3);
#pragma once

#include "image/img.h"

#include <array>
#include <cstdint>
#include <vector>

namespace velm::test {

/// The second that flashes most.
struct WorstSecond {
    std::int32_t flashes = 0;
    std::int32_t firstFrame = 0;
};

class FlashMeter {
public:
    /// The next frame, 256 x 256.
    void frame(const IMG& img);

    /// The most flashes in any second at that rate: where a quarter of the blocks change within a tenth of a
    /// second, all of them to one side, and where a quarter of the blocks flash, each at its own time. The
    /// larger one counts.
    [[nodiscard]] WorstSecond worst(std::int32_t framesPerSecond) const;

private:
    static constexpr std::int32_t blockSize = 8;
    static constexpr std::int32_t blocksAcross = 256 / blockSize;
    static constexpr std::int32_t blockCount = blocksAcross * blocksAcross;

    /// The luminance of a block since its last change.
    struct Block {
        double darkest = 1;
        double lightest = 0;
        std::int32_t side = 0;             ///< 1 after a change to light, -1 to dark, 0 before the first
        std::vector<std::int32_t> changes; ///< the frames in which it changed
    };

    /// The blocks that changed in a frame.
    struct Changes {
        std::int32_t toLight = 0;
        std::int32_t toDark = 0;
    };

    [[nodiscard]] WorstSecond worstTogether(std::int32_t framesPerSecond) const;
    [[nodiscard]] WorstSecond worstApart(std::int32_t framesPerSecond) const;

    std::array<Block, blockCount> blocks;
    std::vector<Changes> changes; ///< frame by frame
};

} // namespace velm::test

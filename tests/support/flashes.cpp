// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "support/flashes.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace velm::test {

namespace {

constexpr double leastChange = 0.1;
constexpr double mostDark = 0.8; ///< a change between two lighter values is none

/// What the values 0 to 255 of a channel add to the relative luminance, as sRGB defines it, in 2^20ths.
std::array<std::uint32_t, 256> lightOf(double share) {
    std::array<std::uint32_t, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const double value = static_cast<double>(i) / 255;
        const double linear = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        table[i] = static_cast<std::uint32_t>(std::lround(share * linear * 0x100000));
    }
    return table;
}

const std::array<std::uint32_t, 256> lightOfRed = lightOf(0.2126);
const std::array<std::uint32_t, 256> lightOfGreen = lightOf(0.7152);
const std::array<std::uint32_t, 256> lightOfBlue = lightOf(0.0722);

std::uint32_t luminance(std::uint32_t pixel) {
    return lightOfRed[pixel >> 16 & 255] + lightOfGreen[pixel >> 8 & 255] + lightOfBlue[pixel & 255];
}

/// The most changes of a sorted list within a second, in pairs.
WorstSecond mostPairs(const std::vector<std::int32_t>& frames, std::int32_t framesPerSecond) {
    WorstSecond worst;
    for (auto first = frames.begin(); first != frames.end(); ++first) {
        const auto end = std::lower_bound(first, frames.end(), *first + framesPerSecond);
        const auto pairs = static_cast<std::int32_t>(end - first) / 2;
        if (pairs > worst.flashes) {
            worst = {pairs, *first};
        }
    }
    return worst;
}

} // namespace

void FlashMeter::frame(const IMG& img) {
    std::array<std::uint32_t, blockCount> light{};
    for (std::int32_t y = 0; y < img.height; ++y) {
        const std::uint32_t* const row = img.pixels + std::int64_t{y} * img.width;
        std::uint32_t* const blocksOfRow = light.data() + y / blockSize * blocksAcross;
        for (std::int32_t x = 0; x < img.width; ++x) {
            blocksOfRow[x / blockSize] += luminance(row[x]);
        }
    }
    const auto number = static_cast<std::int32_t>(changes.size());
    Changes& now = changes.emplace_back();
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        Block& block = blocks[i];
        const double value = light[i] / (0x100000 * double{blockSize * blockSize});
        if (block.side <= 0 && value - block.darkest >= leastChange && block.darkest < mostDark) {
            block.side = 1;
            block.lightest = value;
            block.changes.push_back(number);
            ++now.toLight;
        } else if (block.side >= 0 && block.lightest - value >= leastChange && value < mostDark) {
            block.side = -1;
            block.darkest = value;
            block.changes.push_back(number);
            ++now.toDark;
        }
        block.darkest = std::min(block.darkest, value);
        block.lightest = std::max(block.lightest, value);
    }
}

WorstSecond FlashMeter::worst(std::int32_t framesPerSecond) const {
    const WorstSecond together = worstTogether(framesPerSecond);
    const WorstSecond apart = worstApart(framesPerSecond);
    return together.flashes > apart.flashes ? together : apart;
}

WorstSecond FlashMeter::worstTogether(std::int32_t framesPerSecond) const {
    constexpr std::int32_t atOnce = 3; // frames
    std::vector<std::int32_t> times;
    std::int32_t side = 0;
    std::int32_t since = 0; // the first frame that may count for the next change
    for (std::int32_t now = 0; now < static_cast<std::int32_t>(changes.size()); ++now) {
        Changes sum;
        for (std::int32_t i = std::max(now - atOnce + 1, since); i <= now; ++i) {
            sum.toLight += changes[static_cast<std::size_t>(i)].toLight;
            sum.toDark += changes[static_cast<std::size_t>(i)].toDark;
        }
        const std::int32_t newSide = sum.toLight >= sum.toDark ? 1 : -1;
        if (std::max(sum.toLight, sum.toDark) >= blockCount / 4 && newSide != side) {
            side = newSide;
            since = now + 1;
            times.push_back(now);
        }
    }
    return mostPairs(times, framesPerSecond);
}

WorstSecond FlashMeter::worstApart(std::int32_t framesPerSecond) const {
    WorstSecond worst;
    std::array<std::int32_t, blockCount> pairs{};
    for (std::int32_t first = 0; first < static_cast<std::int32_t>(changes.size()); ++first) {
        std::transform(blocks.begin(), blocks.end(), pairs.begin(), [&](const Block& block) {
            const auto begin = std::lower_bound(block.changes.begin(), block.changes.end(), first);
            const auto end = std::lower_bound(begin, block.changes.end(), first + framesPerSecond);
            return static_cast<std::int32_t>(end - begin) / 2;
        });
        // What a quarter of the blocks reach or exceed.
        const auto quarter = pairs.begin() + blockCount / 4 - 1;
        std::nth_element(pairs.begin(), quarter, pairs.end(), std::greater<>());
        if (*quarter > worst.flashes) {
            worst = {*quarter, first};
        }
    }
    return worst;
}

} // namespace velm::test

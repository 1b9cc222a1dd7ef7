// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "platform/layout.h"

#include <algorithm>

namespace velm {

namespace {

std::int32_t dividedDown(std::int32_t value, std::int32_t divisor) {
    return value >= 0 ? value / divisor : -((-value + divisor - 1) / divisor);
}

std::int32_t largestScale(std::int32_t width, std::int32_t height, std::int32_t roomWidth,
                          std::int32_t roomHeight) {
    return std::max(std::min(roomWidth / width, roomHeight / height), 1);
}

} // namespace

void Layout::toPicture(std::int32_t& x, std::int32_t& y) const {
    x = dividedDown(x - left, scale);
    y = dividedDown(y - top, scale);
}

Layout layoutFor(std::int32_t width, std::int32_t height, std::int32_t windowWidth,
                 std::int32_t windowHeight) {
    const std::int32_t scale = largestScale(width, height, windowWidth, windowHeight);
    return {scale, dividedDown(windowWidth - width * scale, 2),
            dividedDown(windowHeight - height * scale, 2)};
}

std::int32_t scaleForScreen(std::int32_t width, std::int32_t height, std::int32_t screenWidth,
                            std::int32_t screenHeight) {
    constexpr std::int32_t freePart = 10;
    return largestScale(width, height, screenWidth - screenWidth / freePart,
                        screenHeight - screenHeight / freePart);
}

} // namespace velm

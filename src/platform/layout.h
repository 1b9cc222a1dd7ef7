// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Where the picture stands in the window: enlarged by a whole number, centred.
//
//     const Layout layout = layoutFor(256, 256, 1920, 1080); // 4 times, from (448, 28) on
#pragma once

#include <cstdint>

namespace velm {

/// A picture's place in a window.
struct Layout {
    std::int32_t scale = 1; ///< >= 1
    std::int32_t left = 0;  ///< of the picture in the window, in its pixels; negative where it is cut off
    std::int32_t top = 0;   ///< likewise

    /// True for the same picture in the same place.
    bool operator==(const Layout&) const = default;

    /// A place in the window as one in the picture, rounded down, so that left of the picture is negative.
    void toPicture(std::int32_t& x, std::int32_t& y) const;
};

/// The largest picture that a window holds, at least in its own size.
Layout layoutFor(std::int32_t width, std::int32_t height, std::int32_t windowWidth,
                 std::int32_t windowHeight);

/// The largest enlargement that leaves a tenth of the screen's width and height free, for what else a desktop
/// shows; at least 1.
std::int32_t scaleForScreen(std::int32_t width, std::int32_t height, std::int32_t screenWidth,
                            std::int32_t screenHeight);

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What the page does for the machine. In the browser these are the functions of browser.js; a test brings its
// own.
//
//     browserShow(pixels, 256, 256);
//     browserWaitForDisplay();
#pragma once

#include <cstdint>

extern "C" {

/// Shows a picture of words 0xAABBGGRR, the bytes red, green, blue and 255 in their order.
void browserShow(const std::uint32_t* pixels, std::int32_t width, std::int32_t height);

/// Waits until the display is about to show its next frame; while nobody sees the page, until somebody does.
void browserWaitForDisplay();

/// Waits for so long.
void browserWait(std::int32_t micros);

/// Hands samples to the speaker, which plays them after those before. 0 while there is none.
std::int32_t browserPlay(const std::int16_t* samples, std::int32_t count);
}

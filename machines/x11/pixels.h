// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Frames of 0x00RRGGBB words put into the layout of the server's visual.
//
//     x11CopyPixels(*frame, *image);
//     XPutImage(connection, window, graphics, image, 0, 0, 0, 0, width, height);
#pragma once

#include "image/img.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h> // IWYU pragma: keep

namespace velm {

/// True when a word of the image is a word of ours: 32 bits, 0x00RRGGBB, in this machine's byte order.
bool x11CopiesWords(const XImage& image);

/// Copies the part that both have. Words that are laid out as ours are copied as they stand; for any other
/// TrueColor layout each channel is fitted to its mask: fewer bits drop the low ones, more bits repeat the
/// high ones.
void x11CopyPixels(const IMG& frame, XImage& image);

} // namespace velm

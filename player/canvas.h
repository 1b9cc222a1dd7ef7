// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The enlarged picture on its way to the server: in memory that both share where the server has that, and
// copied through the connection where it has not, or says that it has and then refuses (a connection from
// another machine, another container).
//
//     canvas.draw(frame, 3);
//     canvas.send(left, top);
#pragma once

#include "image/img.h"
#include "x11/display.h"

#include <X11/extensions/XShm.h>

namespace velm {

/// An image of the picture, enlarged.
class Canvas {
public:
    Canvas() = default;
    ~Canvas() = default;
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    /// Enlarges a frame into the canvas, which gets its size; false when memory runs out. The server must
    /// have answered something since the last send, or it may still be reading.
    bool draw(const IMG& frame, std::int32_t scale);

    /// Puts the canvas into the window.
    void send(std::int32_t left, std::int32_t top);

private:
    bool fit(std::int32_t width, std::int32_t height);
    bool share(std::int32_t width, std::int32_t height);
    void release();
    bool convert(const IMG& frame);

    XImage* image = nullptr;
    XImage* converted = nullptr; ///< a frame in the server's layout, where that is not ours
    XShmSegmentInfo segment{};   ///< shmaddr is nullptr while nothing is shared
    bool mayShare = true;        ///< until the server refuses
};

} // namespace velm

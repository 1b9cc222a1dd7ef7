// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What scenes share: the stock that start-up makes for them, the scroll text over its bars, and what the
// first scene that needs it makes for all later ones.
#pragma once

#include "demo/velm4030.h"
#include "foundation/owned.h"
#include "image/img.h"

#include <cstdint>

namespace velm {

/// True when start-up has made every font, pen, picture and colour that scenes draw with.
bool isStocked();

/// Deletes what scenes have made for all of them: the scroller and its bars, the ball, the mesh.
/// The next set-up makes it anew.
void dropShared();

/// The bars and the scroll text, made where they are missing; the text waves about another row for as long as
/// this lives. It begins with the next line of prose: a scene is too short for the ornaments and the keys
/// before it.
class ScrollText {
public:
    explicit ScrollText(std::int32_t y = VELM4030_scrollY);
    ~ScrollText() { VELM4030_placeScroll(VELM4030_scrollY); }

    /// The bars and the text, each while its key leaves it on, darker from a weight of 256 down to black at
    /// 0.
    void draw(std::int32_t weight);

    ScrollText(const ScrollText&) = delete;
    ScrollText& operator=(const ScrollText&) = delete;

private:
    Owned<IMG_delete> bars; ///< keeps them while they are darkened
};

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The versions of a program on the window's stage: the one that is seen, the next one, which comes on as soon
// as it has drawn its first frame, and the one before, which waits and comes back when the new one fails.
//
//     stage.bringOn(path, kit);
//     const std::string news = stage.draw(kit); // each frame
#pragma once

#include "kit/kit.h"
#include "platform/channel.h"
#include "workshop/program.h"

#include <memory>
#include <string>

namespace velm {

class Stage {
public:
    /// Starts a version; one that has not come on yet gives way to it.
    void bringOn(const std::string& path, const KIT& kit);

    /// Draws the seen version's frame, or its last one while it needs longer, plays its sound, and hands it
    /// the keys and the pointer. Returns what has become of a version that failed, else "".
    std::string draw(KIT& kit);

    /// True once after a new version has come on.
    [[nodiscard]] bool hasChanged();

private:
    void change();
    void takeFrame(KIT& kit);

    std::unique_ptr<Program> seen;
    std::unique_ptr<Program> next;
    std::unique_ptr<Program> former;
    Owned<IMG_delete> picture{IMG_newSized(Channel::size, Channel::size)}; ///< the last frame
    MUSIC* tune = nullptr; ///< what the kit plays while the program plays nothing
    bool changed = false;
};

} // namespace velm

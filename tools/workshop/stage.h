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
    /// Frames of the window that a program is silent before the tune comes back.
    static constexpr std::int32_t longSilence = Channel::mostRate / 2;

    void change();
    void takeFrame();
    void passSound(KIT& kit);

    std::unique_ptr<Program> seen;
    std::unique_ptr<Program> next;
    std::unique_ptr<Program> former;
    Owned<IMG_delete> picture{IMG_newSized(Channel::size, Channel::size)}; ///< the last frame
    MUSIC* tune = nullptr;                   ///< what the kit plays while the program plays nothing
    std::int32_t frame = 0;                  ///< number of the frame that the seen version draws
    std::int64_t soundAt = 0;                ///< CLOCK_now() when its sound was last taken
    std::int32_t silentFrames = longSilence; ///< of the window, since it last gave some
    bool changed = false;
};

} // namespace velm

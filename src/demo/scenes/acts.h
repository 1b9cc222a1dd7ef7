// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The shape of a scene: its cast, a record of what it owns, and its acts, a table of what draws when. A cast
// makes itself, member by member, and goes with the scene; nobody tests or deletes its members.
//
//     struct Sky {
//         Owned<LSTAR_delete> stars{LSTAR_new(), [](LSTAR& made) { made.colours = demo.hueRamp; }};
//     };
//     void drawStars(Sky& sky, std::int32_t) { LSTAR_draw(sky.stars, demo.screen); }
//
//     constexpr Act<Sky> acts[] = {{0, 600, drawStars}};
//     void VELM4030_sceneSky() { play({}, 600, acts); }
#pragma once

#include "demo/scenes/curves.h" // IWYU pragma: export
#include "demo/scenes/frames.h" // IWYU pragma: export
#include "foundation/memory.h"
#include "foundation/owned.h" // IWYU pragma: export

#include <algorithm>
#include <cstdint>

namespace velm {

inline constexpr std::int32_t middle = 128; ///< of the window, pixels, both ways

using Picture = Owned<IMG_delete>;

/// A black picture of the window's size.
inline IMG* newWindowPicture() {
    return IMG_newSized(settings.windowWidth, settings.windowHeight);
}

/// A cloud of so many dots on random waves.
inline Owned<SINEDOTS_delete> makeDots(std::int32_t count) {
    return Owned<SINEDOTS_delete>(SINEDOTS_new(),
                                  [count](SINEDOTS& made) { SINEDOTS_setCount(&made, count); });
}

/// Dots on a line without gaps: their steps are small, x growing from wave to wave, y shrinking from `stepY`.
inline Owned<SINEDOTS_delete> makeDotLine(std::int32_t stepY) {
    return Owned<SINEDOTS_delete>(SINEDOTS_new(), [stepY](SINEDOTS& made) {
        SINEDOTS_setCount(&made, SINE_tableLength);
        for (std::int32_t k = 0; k < SINEDOTS_waveCount; ++k) {
            made.step[k] = {k + 1, stepY - k, 0};
        }
    });
}

/// Stars that stand still where chance might have put them: steps without a common measure scatter the dots.
inline Owned<SINEDOTS_delete> makeStars(std::int32_t count) {
    return Owned<SINEDOTS_delete>(SINEDOTS_new(), [count](SINEDOTS& made) {
        constexpr SINEDOTS_AXES steps[SINEDOTS_waveCount] = {{389, 277, 0}, {733, 577, 0}, {151, 911, 0}};
        SINEDOTS_setCount(&made, count);
        for (std::int32_t k = 0; k < SINEDOTS_waveCount; ++k) {
            made.step[k] = steps[k];
            made.speed[k] = {};
        }
    });
}

/// What bends a picture by rows (DISTX) or columns (DISTY): its wave moves by `speed` a frame and by `step`
/// from line to line.
template <auto Make, auto Delete>
Owned<Delete> makeBend(IMG* source, std::int32_t amplitude, std::int32_t speed, std::int32_t step) {
    return Owned<Delete>(Make(), [=](auto& made) {
        made.source = source;
        made.amplitude = amplitude;
        made.wave.speed = speed;
        made.wave.offsetStep = step;
    });
}

template <typename Cast>
struct Act {
    std::int32_t begin, end; ///< it draws from frame `begin` up to and without frame `end`
    void (*draw)(Cast& cast, std::int32_t frame);
    void (*enter)(Cast& cast) = nullptr; ///< called before its first frame
};

/// An act of every cast with a scroll text, `scroll`: it comes and goes with a scene of so many frames.
template <std::int32_t frames, typename Cast>
void playScrollText(Cast& cast, std::int32_t frame) {
    constexpr std::int32_t slope = 40;
    cast.scroll.draw(curveStay(frame, 0, frames, slope));
}

/// An act of every cast: the frame comes out of the dark, and goes back there from frame `leaves` on, by
/// `speed` of 256 a frame.
template <std::int32_t leaves, std::int32_t speed, typename Cast>
void playDark(Cast&, std::int32_t frame) {
    const std::int32_t lost = std::max((24 - frame) * 11, (frame - leaves) * speed);
    IMG_subColour(demo.screen, static_cast<std::uint32_t>(std::clamp(lost, 0, 255)) * 0x010101U);
}

/// Plays a scene: in every frame the acts whose time it is, in the table's order, then the pointer and the
/// overlay. A scene that lacks something, because memory ran out at start-up or now, ends at once.
template <typename Cast, std::size_t count>
void play(const SceneLook& look, std::int32_t frames, const Act<Cast> (&acts)[count]) {
    setLook(look);
    // Nothing of the scene before is seen, nor of the start-up picture.
    IMG_fill(demo.screen, look.clearMode == ClearMode::background ? demo.background : 0);
    if (isStocked()) {
        LFONT_setColour(demo.textMedium, 0xFFFFFF); // the bobbing letters have left the overlay in a hue
        const std::int64_t refused = refusedAllocations;
        Cast cast;
        if (refusedAllocations == refused) {
            runFrames(frames, [&](std::int32_t frame) {
                for (const Act<Cast>& act : acts) {
                    if (frame == act.begin && act.enter != nullptr) {
                        act.enter(cast);
                    }
                    if (frame >= act.begin && frame < act.end) {
                        act.draw(cast, frame);
                    }
                }
                VELM4030_mouseLayer();
                VELM4030_fpsLayer();
            });
            return;
        }
    }
    runEmptyFrame();
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// PROGRAMME, an order of scenes that plays for ever: the tour of all of them, the few that a viewer names, or
// a mix. Several scenes follow each other through a fade of 15 frames at most, and each begins on a bar of
// the music: it ends up to a bar before its time for that, or long before where it is long or waits for
// Space. A scene on its own is left as it is.
//
//     PROGRAMME programme;
//     PROGRAMME_appendTour(programme);
//     PROGRAMME_play(programme);
#pragma once

#include "demo/scenes.h"

#include <array>
#include <cstdint>

namespace velm {

struct PROGRAMME {
    static constexpr std::int32_t mostParts = 64;

    std::array<const SCENE*, mostParts> parts{}; ///< borrowed, in their order
    std::int32_t count = 0;                      ///< parts in use
    std::uint32_t seed = 0; ///< of the mix, in which every round has an order of its own; 0 for no mix
    std::int32_t next = 0;  ///< place of the part that comes next; it counts on from round to round
    bool isPlaying = false; ///< a part runs; false between two of them
};

/// Appends a scene; false when there is no room for it.
bool PROGRAMME_append(PROGRAMME& programme, const SCENE* scene);

/// Appends every scene, in an order that opens with doors and closes with a curtain.
void PROGRAMME_appendTour(PROGRAMME& programme);

/// Mixes the parts from now on, by a seed that is not 0: every scene once before any comes again, and none
/// twice running. Of parts that are the same one stays.
void PROGRAMME_shuffle(PROGRAMME& programme, std::uint32_t seed);

/// The scene at a place, any number, also below 0: the order has no beginning. nullptr when it is empty.
const SCENE* PROGRAMME_at(const PROGRAMME& programme, std::int32_t place);

/// The first place of a scene, or -1.
std::int32_t PROGRAMME_placeOf(const PROGRAMME& programme, const SCENE* scene);

/// The most frames that a scene gets among several; 0 for as long as it lasts by itself.
std::int32_t PROGRAMME_length(const SCENE& scene);

/// Ends the part that runs, and a pause with it, and goes on with the next or the previous one. Said more
/// than once before that part begins, it goes so many parts further. For the keys of a machine.
void PROGRAMME_next(PROGRAMME& programme);
void PROGRAMME_previous(PROGRAMME& programme);

/// The same, but goes on with the part at a place.
void PROGRAMME_goTo(PROGRAMME& programme, std::int32_t place);

/// Plays one part, and among several the fade behind it.
void PROGRAMME_playPart(PROGRAMME& programme);

/// Plays what was appended, or the tour where nothing was, for ever. Only Escape ends it.
[[noreturn]] void PROGRAMME_play(PROGRAMME& programme);

} // namespace velm

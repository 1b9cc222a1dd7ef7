// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/programme.h"

#include "demo/scenes/beat.h"
#include "demo/scenes/frames.h"
#include "foundation/wrap.h"

#include <algorithm>
#include <random>
#include <span>

namespace velm {

namespace {

/// A part of the tour, and the frames that its scene has or gets: fewer where it would go on for too long.
struct Stop {
    std::string_view scene;
    std::int32_t frames;
};

constexpr Stop tour[] = {
    {"extra-4", 900},  {"extra-10", 750},    {"default", 900},  {"extra-2", 900},
    {"extra-5", 750},  {"interlude-b", 501}, {"extra-11", 750}, {"particles", 900},
    {"extra-7", 1000}, {"extra-12", 750},    {"extra-3", 750},  {"interlude-a", 750},
    {"extra-9", 1500}, {"extra-8", 750},     {"extra-1", 750},  {"extra-6", 1000},
};

const Stop* stopOf(const SCENE& scene) {
    const auto* const found = std::find_if(std::begin(tour), std::end(tour),
                                           [&scene](const Stop& stop) { return stop.scene == scene.name; });
    return found != std::end(tour) ? found : nullptr;
}

using Order = std::array<const SCENE*, PROGRAMME::mostParts>;

std::int32_t roundOf(const PROGRAMME& programme, std::int32_t place) {
    const std::int32_t last = programme.count - 1;
    return place >= 0 ? place / programme.count : (place - last) / programme.count;
}

/// The order of a round of the mix, which its number and the seed alone decide. Two parts have no other order
/// than their own, or one of them would come twice running.
Order orderOf(const PROGRAMME& programme, std::int32_t round) {
    Order order = programme.parts;
    if (programme.count < 3) {
        return order;
    }
    std::mt19937 draws(programme.seed + static_cast<std::uint32_t>(round));
    std::shuffle(order.begin(), order.begin() + programme.count, draws);
    return order;
}

constexpr std::uint32_t fadeStep = 0x111111;
constexpr std::int32_t mostFadeFrames = 15;

/// The frames in which a picture fades until nothing is left but, perhaps, the pointer: 15 from white, none
/// from black.
std::int32_t framesToBlack(const IMG& img) {
    constexpr std::int64_t pointerArea = std::int64_t{16} * 16;
    const std::span pixels(img.pixels,
                           static_cast<std::size_t>(img.width) * static_cast<std::size_t>(img.height));
    std::int32_t frames = 0;
    while (frames < mostFadeFrames &&
           std::count_if(pixels.begin(), pixels.end(), [frames](std::uint32_t pixel) {
               return RGB888_sub(pixel, static_cast<std::uint32_t>(frames) * fadeStep) != 0;
           }) > pointerArea) {
        ++frames;
    }
    return frames;
}

/// How many of `most` (> 0) frames a part plays for the fade after it to end with a bar of the music, so that
/// every part begins on one.
std::int32_t framesUpToBar(std::int32_t most) {
    const std::int32_t bar = framesOfBar();
    const std::int32_t over = positiveModulo(framesIntoBar() + most + mostFadeFrames, bar);
    return most > over ? most - over : most;
}

/// Takes the picture that is shown to black, in frames of the usual pace, while the music goes on to its next
/// bar.
void fade(const IMG* shown) {
    if (shown != demo.screen) {
        IMG_copy(shown, demo.screen);
    }
    setLook({.fadeOn = 0, .clearMode = ClearMode::fade}); // what is on the screen stays there
    const std::int32_t upToBar = positiveModulo(-framesIntoBar(), framesOfBar());
    const std::int32_t frames = upToBar <= mostFadeFrames ? upToBar : framesToBlack(*demo.screen);
    runFrames(std::max(frames, framesToBlack(*demo.screen)),
              [](std::int32_t) { IMG_subColour(demo.screen, fadeStep); });
    IMG_fill(demo.screen, 0);                                    // a key may have ended it early
    demo.control &= static_cast<std::uint8_t>(~controlNextPart); // or come when it was over
}

void leavePart(PROGRAMME& programme, std::int32_t steps) {
    programme.next += steps;
    programme.isPlaying = false;
    demo.paused = 0;
    demo.control |= controlNextPart;
}

} // namespace

bool PROGRAMME_append(PROGRAMME& programme, const SCENE* scene) {
    if (scene == nullptr || programme.count == PROGRAMME::mostParts) {
        return false;
    }
    programme.parts[static_cast<std::size_t>(programme.count++)] = scene;
    return true;
}

void PROGRAMME_appendTour(PROGRAMME& programme) {
    const std::span stops(tour);
    for (const Stop& stop : stops.first(stops.size() - 1)) {
        PROGRAMME_append(programme, SCENE_find(stop.scene));
    }
    for (const SCENE& scene : SCENE_all()) { // what the table does not know yet comes before the curtain
        if (stopOf(scene) == nullptr) {
            PROGRAMME_append(programme, &scene);
        }
    }
    PROGRAMME_append(programme, SCENE_find(stops.back().scene));
}

void PROGRAMME_shuffle(PROGRAMME& programme, std::uint32_t seed) {
    auto* const begin = programme.parts.data();
    auto* end = begin;
    for (std::int32_t i = 0; i < programme.count; ++i) {
        if (std::find(begin, end, begin[i]) == end) {
            *end++ = begin[i];
        }
    }
    programme.count = static_cast<std::int32_t>(end - begin);
    programme.seed = seed;
}

const SCENE* PROGRAMME_at(const PROGRAMME& programme, std::int32_t place) {
    if (programme.count == 0) {
        return nullptr;
    }
    const std::int32_t round = roundOf(programme, place);
    auto index = static_cast<std::size_t>(place - round * programme.count);
    if (programme.seed == 0) {
        return programme.parts[index];
    }
    const Order order = orderOf(programme, round);
    const Order before = orderOf(programme, round - 1);
    // Where a round would begin with what the round before ended on, its first two change places. Of three or
    // more that moves no end, so the round before may be taken as drawn.
    const bool repeats =
        programme.count > 2 && order[0] == before[static_cast<std::size_t>(programme.count - 1)];
    if (repeats && index < 2) {
        index = 1 - index;
    }
    return order[index];
}

std::int32_t PROGRAMME_placeOf(const PROGRAMME& programme, const SCENE* scene) {
    const SCENE* const* const end = programme.parts.data() + programme.count;
    const SCENE* const* const found = std::find(programme.parts.data(), end, scene);
    return found != end ? static_cast<std::int32_t>(found - programme.parts.data()) : -1;
}

std::int32_t PROGRAMME_length(const SCENE& scene) {
    const Stop* const stop = stopOf(scene);
    return stop != nullptr ? stop->frames : 0;
}

void PROGRAMME_next(PROGRAMME& programme) {
    // While a part runs, `next` stands behind it already.
    leavePart(programme, programme.isPlaying ? 0 : 1);
}

void PROGRAMME_previous(PROGRAMME& programme) {
    leavePart(programme, programme.isPlaying ? -2 : -1);
}

void PROGRAMME_goTo(PROGRAMME& programme, std::int32_t place) {
    leavePart(programme, place - programme.next);
}

void PROGRAMME_playPart(PROGRAMME& programme) {
    const SCENE* const scene = PROGRAMME_at(programme, programme.next);
    if (scene == nullptr) {
        return;
    }
    const bool isOneOfSeveral = programme.count > 1;
    ++programme.next;
    programme.isPlaying = true;
    const std::int32_t frames = PROGRAMME_length(*scene);
    demo.framesLeft = isOneOfSeveral && frames > 0 ? framesUpToBar(frames) : 0;
    scene->run();
    demo.framesLeft = 0;
    programme.isPlaying = false;
    if (isOneOfSeveral) {
        fade(demo.blurImage); // the frame as it was shown
    }
}

void PROGRAMME_play(PROGRAMME& programme) {
    if (programme.count == 0) {
        PROGRAMME_appendTour(programme);
    }
    if (programme.count > 1) {
        fade(demo.screen);
    }
    for (;;) {
        PROGRAMME_playPart(programme);
    }
}

} // namespace velm

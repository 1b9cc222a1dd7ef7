// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/archpath.h"

#include "foundation/chance.h"
#include "foundation/random.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/sine.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "image/rgb888.h"
#include "vector/obj2d.h"
#include "vector/vec2d.h"

#include <algorithm>
#include <cstdlib>

namespace velm {

const IDENTITY ARCHPATH_identity = makeIdentity("ARCHPATH", "CODE", "20150705", "ZENDORAK", "C");
std::uint8_t ARCHPATH_verbose = 0;

namespace {

constexpr std::int32_t echoFrames = 2; // between one echo and the next
constexpr std::int32_t mostEchoes = (ARCHPATH_trailLength - 1) / echoFrames;
constexpr std::int32_t halfTurn = SINE_tableLength / 2;

/// A column of the ground.
std::int32_t randomPlace(const ARCHPATH& path) {
    return wrapAdd(path.left, RANDOM_below(path.random, wrapAdd(wrapSub(path.right, path.left), 1)));
}

/// Begins an arch where the last one ended.
void beginArch(ARCHPATH& path) {
    path.step = 0;
    path.from = path.to;
    path.to = randomPlace(path);
    path.height = path.rise / 2 + RANDOM_below(path.random, path.rise / 2 + 1);
    const std::int32_t spin = 4 + RANDOM_below(path.random, 16);
    // It rolls the way it leaps.
    path.spin = path.to < path.from ? -spin : spin;
}

ARCHPATH_POSE poseOf(const ARCHPATH& path) {
    const std::int64_t way = std::int64_t{path.to} - path.from;
    const auto turned = static_cast<std::int32_t>(std::int64_t{halfTurn} * path.step / path.frames);
    return {.x = wrapAdd(path.from, static_cast<std::int32_t>(way * path.step / path.frames)),
            .y = wrapSub(path.ground, SINE_scaled(path.height, turned)),
            .angle = wrapAdd(path.trail[0].angle, path.spin) & SINE_tableMask};
}

} // namespace

ARCHPATH* ARCHPATH_new() {
    return newRecord<ARCHPATH>(ARCHPATH_error, ARCHPATH_delete, [](ARCHPATH& path) {
        path.random = RANDOM_new();
        ARCHPATH_randomize(&path);
        return path.random != nullptr;
    });
}

void ARCHPATH_randomize(ARCHPATH* path) {
    if (refused(path == nullptr || path->random == nullptr, ARCHPATH_error)) {
        return;
    }
    path->random->counter = static_cast<std::uint32_t>(chance());
    path->to = randomPlace(*path);
    beginArch(*path);
    std::fill(std::begin(path->trail), std::end(path->trail),
              ARCHPATH_POSE{.x = path->from, .y = path->ground, .angle = 0});
}

bool ARCHPATH_advance(ARCHPATH* path) {
    if (refused(path == nullptr || path->frames <= 0, ARCHPATH_error)) {
        return false;
    }
    path->step = wrapAdd(path->step, 1);
    const ARCHPATH_POSE pose = poseOf(*path);
    std::copy_backward(std::begin(path->trail), std::end(path->trail) - 1, std::end(path->trail));
    path->trail[0] = pose;
    if (path->step < path->frames) {
        return false;
    }
    beginArch(*path);
    return true;
}

void ARCHPATH_draw(const ARCHPATH* path, IMG* target) {
    if (refused(path == nullptr || !hasPixels(target), ARCHPATH_error)) {
        return;
    }
    if (path->figure == nullptr) {
        return;
    }
    const std::int32_t echoes = std::clamp(path->echoes, 0, mostEchoes);
    for (std::int32_t echo = echoes; echo >= 0; --echo) {
        const ARCHPATH_POSE& pose = path->trail[static_cast<std::size_t>(echo) * echoFrames];
        const std::int32_t bright = RGB888_fullWeight * (echoes + 1 - echo) / (echoes + 1);
        OBJ2D_setColour(path->figure, RGB888_dim(path->colour, echo == 0 ? bright : bright / 2));
        path->figure->position->x = pose.x;
        path->figure->position->y = pose.y;
        path->figure->scale->x = path->figure->scale->y = path->scale;
        path->figure->angle = static_cast<std::uint32_t>(pose.angle);
        OBJ2D_draw(path->figure, target);
    }
}

void ARCHPATH_delete(ARCHPATH** handle) {
    deleteRecord(handle, ARCHPATH_error, deletedBy(RANDOM_delete, &ARCHPATH::random));
}

void ARCHPATH_error() {
    reportLine(ARCHPATH_verbose, "ARCHPATH error");
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "vector/vec2d.h"

#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/sine.h"
#include "foundation/wrap.h"

namespace velm {

const IDENTITY VEC2D_identity = makeIdentity("VEC2D", "ZENDORAK", "CODE", "20150503", "C");
std::uint8_t VEC2D_verbose = 1;

VEC2D* VEC2D_new() {
    return newRecord<VEC2D>(VEC2D_error);
}

void VEC2D_add(const VEC2D* offset, VEC2D* point) {
    if (refused(offset == nullptr || point == nullptr, VEC2D_error)) {
        return;
    }
    point->x = wrapAdd(point->x, offset->x);
    point->y = wrapAdd(point->y, offset->y);
}

void VEC2D_scale(VEC2D* point, const VEC2D* factor) {
    if (refused(point == nullptr || factor == nullptr, VEC2D_error)) {
        return;
    }
    point->x = wrapMul(point->x, factor->x);
    point->y = wrapMul(point->y, factor->y);
}

void VEC2D_rotate(VEC2D* point, std::int32_t angle) {
    if (refused(point == nullptr, VEC2D_error)) {
        return;
    }
    // VEC2D_rotateZeroIsExact: one expects a full turn to equal no turn; only angle 0 skips the table, whose
    // peak below 1 makes 1024 shrink the point. Unturned drawings keep their exact pixels by it.
    if (angle == 0) {
        return;
    }
    constexpr std::int32_t sineFraction = 15; // bits of a sine table entry
    const std::int32_t s = SINE_entry(angle);
    const std::int32_t c = SINE_entry(wrapAdd(angle, SINE_quarter));
    const std::int32_t x = wrapSub(wrapMul(point->x, c), wrapMul(point->y, s)) >> sineFraction;
    const std::int32_t y = wrapAdd(wrapMul(point->x, s), wrapMul(point->y, c)) >> sineFraction;
    point->x = x;
    point->y = y;
}

std::int32_t VEC2D_lengthSquared(const VEC2D* point) {
    return refused(point == nullptr, VEC2D_error)
               ? -1
               : wrapAdd(wrapMul(point->x, point->x), wrapMul(point->y, point->y));
}

void VEC2D_delete(VEC2D** handle) {
    deleteRecord(handle, VEC2D_error);
}

void VEC2D_error() {
    reportLine(VEC2D_verbose, "VEC2D error");
}

} // namespace velm

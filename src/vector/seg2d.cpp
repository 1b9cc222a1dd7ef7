// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "vector/seg2d.h"

#include "foundation/record.h"
#include "foundation/report.h"
#include "image/img.h"
#include "vector/vec2d.h"

namespace velm {

const IDENTITY SEG2D_identity = makeIdentity("SEG2D", "CODE", "20150504", "C", "ZENDORAK");
std::uint8_t SEG2D_verbose = 0;

namespace {

bool isWhole(const SEG2D* segment) {
    return segment != nullptr && segment->a != nullptr && segment->b != nullptr;
}

} // namespace

SEG2D* SEG2D_new() {
    return newRecord<SEG2D>(SEG2D_error, SEG2D_delete, [](SEG2D& segment) {
        segment.a = VEC2D_new();
        segment.b = VEC2D_new();
        if (refused(!isWhole(&segment), SEG2D_error)) {
            return false;
        }
        segment.b->x = 1;
        segment.b->y = 1;
        return true;
    });
}

void SEG2D_translate(SEG2D* segment, const VEC2D* offset) {
    if (refused(!isWhole(segment) || offset == nullptr, SEG2D_error)) {
        return;
    }
    VEC2D_add(offset, segment->a);
    VEC2D_add(offset, segment->b);
}

void SEG2D_scale(SEG2D* segment, const VEC2D* factor) {
    if (refused(!isWhole(segment) || factor == nullptr, SEG2D_error)) {
        return;
    }
    VEC2D_scale(segment->a, factor);
    VEC2D_scale(segment->b, factor);
}

void SEG2D_rotate(SEG2D* segment, std::int32_t angle) {
    if (refused(!isWhole(segment), SEG2D_error)) {
        return;
    }
    VEC2D_rotate(segment->a, angle);
    VEC2D_rotate(segment->b, angle);
}

void SEG2D_draw(const SEG2D* segment, IMG* img) {
    if (refused(!isWhole(segment) || img == nullptr, SEG2D_error)) {
        return;
    }
    IMG_drawLine(img, segment->a->x, segment->a->y, segment->b->x, segment->b->y, segment->a->colour);
}

void SEG2D_copy(const SEG2D* src, SEG2D* dst) {
    if (refused(!isWhole(src) || !isWhole(dst), SEG2D_error)) {
        return;
    }
    VEC2D_copy(src->a, dst->a);
    VEC2D_copy(src->b, dst->b);
}

void SEG2D_delete(SEG2D** handle) {
    deleteRecord(handle, SEG2D_error, deletedBy(VEC2D_delete, &SEG2D::a), deletedBy(VEC2D_delete, &SEG2D::b));
}

void SEG2D_error() {
    reportLine(SEG2D_verbose, "SEG2D error");
}

} // namespace velm

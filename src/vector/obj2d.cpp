// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "vector/obj2d.h"

#include "foundation/list.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "image/img.h"
#include "vector/seg2d.h"
#include "vector/vec2d.h"

#include <span>

namespace velm {

const IDENTITY OBJ2D_identity = makeIdentity("OBJ2D", "20150506", "CODE", "ZENDORAK", "C");
std::uint8_t OBJ2D_verbose = 0;

namespace {

constexpr std::int32_t cellSize = 16;

bool isWhole(const OBJ2D* obj) {
    return obj != nullptr && obj->position != nullptr && obj->size != nullptr && obj->scale != nullptr &&
           obj->points != nullptr && obj->segments != nullptr;
}

VEC2D* pointAt(const OBJ2D& obj, std::int32_t index) {
    return static_cast<VEC2D*>(LIST_get(obj.points, index));
}

SEG2D* segmentAt(const OBJ2D& obj, std::int32_t index) {
    return static_cast<SEG2D*>(LIST_get(obj.segments, index));
}

/// Grows the list until `more` elements can be appended; false when memory runs out.
bool makeRoom(LIST* list, std::int32_t more) {
    while (list->capacity - list->count < more) {
        if (LIST_grow(list) == 0) {
            return false;
        }
    }
    return true;
}

/// Where an object draws the ends of its segments.
struct Pose {
    VEC2D position, scale;
    std::int32_t angle;

    explicit Pose(const OBJ2D& obj)
        : position(*obj.position), scale(*obj.scale), angle(static_cast<std::int32_t>(obj.angle)) {}

    VEC2D of(const VEC2D& end) const {
        const VEC2D point = {wrapMul(end.x, scale.x), wrapMul(end.y, scale.y), end.colour};
        return moved(angle == 0 ? point : turned(point));
    }

    VEC2D turned(VEC2D point) const {
        VEC2D_rotate(&point, angle);
        return point;
    }

    VEC2D moved(VEC2D point) const {
        return {wrapAdd(point.x, position.x), wrapAdd(point.y, position.y), point.colour};
    }
};

} // namespace

OBJ2D* OBJ2D_new() {
    return newRecord<OBJ2D>(OBJ2D_error, OBJ2D_delete, [](OBJ2D& obj) {
        obj.position = VEC2D_new();
        obj.size = VEC2D_new();
        obj.scale = VEC2D_new();
        obj.points = LIST_new();
        obj.segments = LIST_new();
        if (refused(!isWhole(&obj), OBJ2D_error)) {
            return false;
        }
        obj.size->x = obj.size->y = cellSize;
        obj.scale->x = obj.scale->y = 1;
        return true;
    });
}

void OBJ2D_addSegment(OBJ2D* obj, SEG2D* segment) {
    if (refused(!isWhole(obj) || segment == nullptr || segment->a == nullptr || segment->b == nullptr ||
                    !makeRoom(obj->segments, 1) || !makeRoom(obj->points, 2),
                OBJ2D_error)) {
        return;
    }
    LIST_append(obj->segments, segment);
    LIST_append(obj->points, segment->a);
    LIST_append(obj->points, segment->b);
    // OBJ2D_farthestSecondEndOnly: one expects both ends to be tried; only the second is, so `farthest` never
    // names a first end.
    const std::int32_t last = obj->points->count - 1;
    if (OBJ2D_isFarther(obj, last) != 0) {
        obj->farthest = last;
    }
}

std::int32_t OBJ2D_isFarther(const OBJ2D* obj, std::int32_t index) {
    if (refused(!isWhole(obj) || index < 0 || index >= obj->points->count, OBJ2D_error)) {
        return 0;
    }
    if (obj->farthest < 0 || obj->farthest >= obj->points->count) {
        return 1;
    }
    const std::int32_t reached = VEC2D_lengthSquared(pointAt(*obj, obj->farthest));
    return reached < VEC2D_lengthSquared(pointAt(*obj, index)) ? 1 : 0;
}

void OBJ2D_setColour(OBJ2D* obj, std::uint32_t colour) {
    if (refused(!isWhole(obj), OBJ2D_error)) {
        return;
    }
    obj->colour = colour;
    for (void* const item : std::span(obj->points->items, static_cast<std::size_t>(obj->points->count))) {
        if (item != nullptr) {
            static_cast<VEC2D*>(item)->colour = colour;
        }
    }
}

void OBJ2D_applyPosition(OBJ2D* obj) {
    if (refused(!isWhole(obj), OBJ2D_error)) {
        return;
    }
    // OBJ2D_positionCountsTwice: one expects the position to be used up; it stays, and drawing adds it again.
    // Fonts are placed this way and then posed again for every character.
    for (std::int32_t i = obj->segments->count - 1; i >= 0; --i) {
        SEG2D_translate(segmentAt(*obj, i), obj->position);
    }
}

void OBJ2D_draw(const OBJ2D* obj, IMG* img) {
    if (refused(!isWhole(obj) || img == nullptr, OBJ2D_error)) {
        return;
    }
    const Pose pose(*obj);
    for (std::int32_t i = obj->segments->count - 1; i >= 0; --i) {
        const SEG2D* segment = segmentAt(*obj, i);
        if (segment == nullptr || segment->a == nullptr || segment->b == nullptr) {
            OBJ2D_error();
            continue;
        }
        const VEC2D a = pose.of(*segment->a);
        const VEC2D b = pose.of(*segment->b);
        IMG_drawLine(img, a.x, a.y, b.x, b.y, a.colour);
    }
}

void OBJ2D_copy(const OBJ2D* src, OBJ2D* dst) {
    if (refused(!isWhole(src) || !isWhole(dst) || src->points->count != dst->points->count, OBJ2D_error)) {
        return;
    }
    for (std::int32_t i = src->points->count - 1; i >= 0; --i) {
        VEC2D_copy(pointAt(*src, i), pointAt(*dst, i));
    }
    VEC2D_copy(src->position, dst->position);
    VEC2D_copy(src->size, dst->size);
    VEC2D_copy(src->scale, dst->scale);
    dst->angle = src->angle;
    dst->colour = src->colour;
    dst->name = src->name;
    dst->version = src->version;
    dst->author = src->author;
    dst->type = src->type;
    dst->farthest = src->farthest;
}

OBJ2D* OBJ2D_clone(const OBJ2D* src) {
    if (refused(!isWhole(src), OBJ2D_error)) {
        return nullptr;
    }
    OBJ2D* clone = OBJ2D_new();
    if (clone == nullptr) {
        return nullptr;
    }
    for (std::int32_t i = 0; i < src->segments->count; ++i) {
        SEG2D* segment = SEG2D_new();
        OBJ2D_addSegment(clone, segment);
        if (clone->segments->count == i) {
            SEG2D_delete(&segment);
            break;
        }
    }
    if (clone->points->count != src->points->count) {
        OBJ2D_error();
        OBJ2D_deleteSegments(clone);
        OBJ2D_delete(&clone);
        return nullptr;
    }
    OBJ2D_copy(src, clone);
    return clone;
}

void OBJ2D_deleteSegments(OBJ2D* obj) {
    if (refused(!isWhole(obj), OBJ2D_error)) {
        return;
    }
    for (std::int32_t i = 0; i < obj->segments->count; ++i) {
        SEG2D* segment = segmentAt(*obj, i);
        SEG2D_delete(&segment);
    }
    LIST_setCount(obj->segments, 0);
    LIST_setCount(obj->points, 0);
    obj->farthest = -1;
}

void OBJ2D_delete(OBJ2D** handle) {
    deleteRecord(handle, OBJ2D_error, deletedBy(VEC2D_delete, &OBJ2D::position),
                 deletedBy(VEC2D_delete, &OBJ2D::size), deletedBy(VEC2D_delete, &OBJ2D::scale),
                 deletedBy(LIST_delete, &OBJ2D::points), deletedBy(LIST_delete, &OBJ2D::segments));
}

void OBJ2D_error() {
    reportLine(OBJ2D_verbose, "OBJ2D error");
}

} // namespace velm

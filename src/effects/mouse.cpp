// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/mouse.h"

#include "foundation/record.h"
#include "foundation/report.h"
#include "image/img.h"
#include "platform/xdpy.h"
#include "platform/xptr.h"

#include <algorithm>
#include <iterator>

namespace velm {

const IDENTITY MOUSE_identity = makeIdentity("MOUSE", "ZENDORAK", "XWINDOWS", "20150620", "CODE");
std::uint8_t MOUSE_verbose = 0;

namespace {

/// The seven fields that a pointer and its picture share.
template <typename From>
void copyState(const From& src, MOUSE& dst) {
    dst.x = src.x;
    dst.y = src.y;
    std::copy(std::begin(src.reserved), std::end(src.reserved), dst.reserved);
    dst.buttons = src.buttons;
}

} // namespace

MOUSE* MOUSE_new() {
    return refused(!XDPY_isOpen(), MOUSE_error) ? nullptr : newRecord<MOUSE>(MOUSE_error);
}

void MOUSE_update(MOUSE* mouse) {
    if (!refused(mouse == nullptr || mouse->pointer == nullptr, MOUSE_error)) {
        copyState(*mouse->pointer, *mouse);
    }
}

void MOUSE_draw(const MOUSE* mouse) {
    if (refused(mouse == nullptr || mouse->image == nullptr, MOUSE_error)) {
        return;
    }
    if (mouse->target == nullptr) {
        // MOUSE_drawGoesOn: one expects the report to be the end of it; the copy is tried all the same, so
        // that IMG reports, too.
        MOUSE_error();
    }
    IMG_blit(mouse->image, mouse->target, 0, 0, mouse->x, mouse->y, mouse->image->width,
             mouse->image->height);
}

std::int32_t MOUSE_equals(const MOUSE* a, const MOUSE* b) {
    return !refused(a == nullptr || b == nullptr, MOUSE_error) && a->x == b->x && a->y == b->y &&
                   a->buttons == b->buttons && a->image == b->image && a->target == b->target &&
                   std::equal(std::begin(a->reserved), std::end(a->reserved), std::begin(b->reserved))
               ? 1
               : 0;
}

void MOUSE_copy(const MOUSE* src, MOUSE* dst) {
    if (refused(src == nullptr || dst == nullptr, MOUSE_error)) {
        return;
    }
    copyState(*src, *dst);
    dst->image = src->image;
    dst->target = src->target;
}

MOUSE* MOUSE_clone(const MOUSE* src) {
    if (refused(src == nullptr, MOUSE_error)) {
        return nullptr;
    }
    // MOUSE_cloneGivesNothing: one expects the new record; it is made and filled like any other, and deleted
    // again.
    MOUSE* clone = MOUSE_new();
    if (clone != nullptr) {
        copyState(*src, *clone);
        delete clone;
    }
    return nullptr;
}

void MOUSE_delete(MOUSE** handle) {
    deleteRecord(handle, MOUSE_error);
}

void MOUSE_error() {
    reportLine(MOUSE_verbose, "MOUSE error");
}

} // namespace velm

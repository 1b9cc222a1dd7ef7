// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/logofly.h"

#include "effects/lfont.h"
#include "foundation/chance.h"
#include "foundation/memory.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/sine.h"
#include "foundation/wrap.h"
#include "vector/vec2d.h"

namespace velm {

const IDENTITY LOGOFLY_identity = makeIdentity("LOGOFLY", "20150610", "CODE", "C", "ZENDORAK");
std::uint8_t LOGOFLY_verbose = 0;

namespace {

constexpr std::int32_t mostLetters = 40;
constexpr std::int32_t bounceMask = SINE_tableMask >> 1; ///< the upper half of the sine

/// What a copy and a clone have in common.
void copyMotion(const LOGOFLY& src, LOGOFLY& dst) {
    dst.phase = src.phase;
    dst.speed = src.speed;
    dst.letterStep = src.letterStep;
    dst.amplitude = src.amplitude;
    dst.spare = src.spare;
    dst.pen = src.pen;
    dst.target = src.target;
    dst.colour = src.colour;
}

/// LOGOFLY_targetIsOnlyTested: one expects the letters in `target`; it must be set, but they go where the pen
/// draws.
bool canDraw(const LOGOFLY* logo) {
    return logo != nullptr && logo->text != nullptr && logo->target != nullptr && logo->pen != nullptr &&
           logo->pen->position != nullptr && logo->pen->scale != nullptr;
}

} // namespace

LOGOFLY* LOGOFLY_new() {
    LOGOFLY* logo = allocateRecord<LOGOFLY>();
    LOGOFLY_randomize(logo); // reports when memory ran out
    return logo;
}

void LOGOFLY_randomize(LOGOFLY* logo) {
    if (refused(logo == nullptr, LOGOFLY_error)) {
        return;
    }
    constexpr LOGOFLY defaults{};
    logo->phase = defaults.phase;
    logo->colour = defaults.colour;
    logo->text = defaults.text;
    logo->speed = chance() % 24 + 8;
    logo->letterStep = chance() % 8 + 1;
    logo->amplitude = chance() % 100 + 16;
}

void LOGOFLY_advance(LOGOFLY* logo) {
    if (!refused(logo == nullptr, LOGOFLY_error)) {
        logo->phase = wrapAdd(logo->phase, logo->speed) & bounceMask;
    }
}

void LOGOFLY_advanceFull(LOGOFLY* logo) {
    if (!refused(logo == nullptr, LOGOFLY_error)) {
        logo->phase = wrapAdd(logo->phase, logo->speed) & SINE_tableMask;
    }
}

void LOGOFLY_draw(const LOGOFLY* logo) {
    if (refused(!canDraw(logo), LOGOFLY_error)) {
        return;
    }
    LFONT* const pen = logo->pen;
    pen->angle = 0;
    pen->scale->x = pen->scale->y = 1;
    pen->position->x = logo->x;
    if (logo->text[0] != '\0') {
        LFONT_setColour(pen, logo->colour);
    }
    std::int32_t phase = logo->phase;
    for (std::int32_t i = 0; i < mostLetters && logo->text[i] != '\0'; ++i) {
        // LOGOFLY_bytesAreSigned: one expects codes 0..255; bytes from 128 on count as negative, for which no
        // font has a glyph.
        pen->character = signedByte(logo->text[i]);
        pen->position->y = wrapSub(logo->y, SINE_scaled(logo->amplitude, phase));
        LFONT_drawChar(pen);
        phase = wrapAdd(phase, logo->letterStep) & bounceMask;
    }
}

std::int32_t LOGOFLY_equals(const LOGOFLY* a, const LOGOFLY* b) {
    return !refused(a == nullptr || b == nullptr, LOGOFLY_error) && a->phase == b->phase &&
                   a->speed == b->speed && a->letterStep == b->letterStep && a->amplitude == b->amplitude
               ? 1
               : 0;
}

void LOGOFLY_copy(const LOGOFLY* src, LOGOFLY* dst) {
    if (refused(src == nullptr || dst == nullptr, LOGOFLY_error)) {
        return;
    }
    copyMotion(*src, *dst);
    dst->x = src->x;
    dst->y = src->y;
    dst->z = src->z;
}

LOGOFLY* LOGOFLY_clone(const LOGOFLY* src) {
    if (refused(src == nullptr, LOGOFLY_error)) {
        return nullptr;
    }
    // LOGOFLY_cloneLeavesPlace: one expects a full copy; place and text are those of a new logo, and making
    // one has drawn its three random numbers.
    LOGOFLY* clone = LOGOFLY_new();
    if (clone != nullptr) {
        copyMotion(*src, *clone);
    }
    return clone;
}

void LOGOFLY_delete(LOGOFLY** handle) {
    deleteRecord(handle, LOGOFLY_error);
}

void LOGOFLY_error() {
    reportLine(LOGOFLY_verbose, "LOGOFLY error");
}

} // namespace velm

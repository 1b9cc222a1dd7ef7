// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "kit/kit.h"

#include "effects/palette.h"
#include "foundation/asset.h"
#include "foundation/memory.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/wrap.h"
#include "kit/fonts.h"
#include "platform/clock.h"
#include "platform/program.h"
#include "vector/obj2d.h"
#include "vector/vec2d.h"

#include <cerrno>

namespace velm {

const IDENTITY KIT_identity = makeIdentity("KIT", "CODE", "20261122", "ZENDORAK", "C");
std::uint8_t KIT_verbose = 0;

namespace {

constexpr std::int32_t smallCell = 8;
constexpr std::int32_t cell = 16;
constexpr char escape = 27;

LFONT* makePen(const ASSET& glyphs, std::int32_t spacing, IMG* target) {
    LFONT* const pen = LFONT_new();
    if (pen != nullptr) {
        pen->glyphs = OBJ2D_parse(glyphs.bytes);
        pen->spacing->x = spacing;
        pen->spacing->y = spacing;
        pen->target = target;
    }
    return pen;
}

FONT* makeFont(const ASSET& sheet, IMG* target) {
    FONT* const font = FONT_new();
    if (font != nullptr) {
        font->image = IMG_fromPNM(sheet.bytes, sheet.size);
        font->width = cell;
        font->height = cell;
        font->target = target;
    }
    return font;
}

void takeNameOfFile() {
    if (programNames.name == nullptr) {
        programNames = {program_invocation_short_name, program_invocation_short_name};
    }
}

/// The window first: what follows asks for it.
bool makeWhole(KIT& kit) {
    const std::int64_t refusals = refusedAllocations;
    takeNameOfFile();
    chanceSeed(1);
    kit.display = XDPY_open();
    kit.keyboard = XKBD_new();
    kit.pointer = XPTR_new();
    kit.sound = XSND_new();
    if (refused(kit.display == nullptr || kit.keyboard == nullptr || kit.pointer == nullptr, KIT_error)) {
        return false;
    }
    kit.screen = IMG_newSized(static_cast<std::int32_t>(kit.display->width),
                              static_cast<std::int32_t>(kit.display->height));
    kit.pen = makePen(assets::kit_font_medium, cell, kit.screen);
    kit.smallPen = makePen(assets::kit_font_small, smallCell, kit.screen);
    kit.font = makeFont(assets::kit_font_sheet, kit.screen);
    kit.hues = newHues();
    return !refused(refusedAllocations != refusals, KIT_error);
}

/// Composes a little on the tune, keeps enough of it in the queue, and plays a frame of what is queued.
void play(KIT& kit) {
    constexpr std::int32_t barsQueued = 2;
    if (kit.sound == nullptr || kit.sound->queue == nullptr) {
        return;
    }
    if (kit.music != nullptr) {
        MUSIC_tick(kit.music);
        if (kit.music->period > 0 && kit.music->tick % kit.music->period == 0) {
            MUSIC_compose(kit.music, chance());
        }
        if (kit.sound->queue->count < barsQueued) {
            LIST_append(kit.sound->queue, kit.music->bar);
        }
    }
    if (kit.sound->queue->count > 0) {
        XSND_play(kit.sound);
    }
}

/// Sleeps for what is left of the frame's time.
void waitForTime(const KIT& kit) {
    constexpr std::int32_t second = 1000000;
    const std::int64_t left = kit.begin + second / kit.rate - CLOCK_now();
    if (left > 0 && left <= second) {
        CLOCK_sleep(static_cast<std::int32_t>(left));
    }
}

void takeInput(KIT& kit) {
    XKBD_poll(kit.keyboard);
    kit.key = kit.keyboard->text[0];
    kit.keycode = kit.keyboard->keycode;
    kit.keyboard->text[0] = '\0';
    kit.keyboard->keycode = 0;
    XPTR_query(kit.pointer);
    XPTR_flush(kit.pointer);
}

void deletePen(LFONT* pen) {
    if (pen != nullptr) {
        LIST* glyphs = pen->glyphs;
        LFONT_delete(&pen);
        if (glyphs != nullptr) {
            LIST_delete(&glyphs);
        }
    }
}

} // namespace

KIT* KIT_new() {
    return newRecord<KIT>(KIT_error, KIT_delete, makeWhole);
}

bool KIT_nextFrame(KIT* kit) {
    if (refused(kit == nullptr, KIT_error)) {
        return false;
    }
    if (kit->shown++ >= 0) {
        XDPY_present(kit->display, kit->screen);
        play(*kit);
        waitForTime(*kit);
        if (!kit->keeps) {
            IMG_fill(kit->screen, kit->background);
        }
    }
    takeInput(*kit);
    kit->frame = wrapAdd(XDPY_framesBefore, kit->shown);
    kit->begin = CLOCK_now();
    return kit->key != escape;
}

void KIT_setRate(KIT* kit, std::int32_t framesPerSecond) {
    constexpr std::int32_t most = 100;
    if (refused(kit == nullptr || framesPerSecond < 1 || framesPerSecond > most, KIT_error)) {
        return;
    }
    kit->rate = framesPerSecond;
    if (kit->sound != nullptr) {
        XSND_setFrameRate(kit->sound, framesPerSecond);
    }
}

void KIT_delete(KIT** handle) {
    const auto pens = [](KIT& kit) {
        deletePen(kit.pen);
        deletePen(kit.smallPen);
    };
    deleteRecord(handle, KIT_error, pens, deletedBy(FONT_delete, &KIT::font),
                 deletedBy(SAMPLE_delete, &KIT::hues), deletedBy(IMG_delete, &KIT::screen),
                 deletedBy(XSND_delete, &KIT::sound), deletedBy(XPTR_delete, &KIT::pointer),
                 deletedBy(XKBD_delete, &KIT::keyboard), deletedBy(XDPY_close, &KIT::display));
}

void KIT_error() {
    reportLine(KIT_verbose, "KIT error");
}

} // namespace velm

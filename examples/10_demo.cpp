// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A whole small demo: three acts over a tune, told from each other by the frame's number, and a text that
// ends it.
#include "audio/sound.h"
#include "effects/lstar.h"
#include "effects/sineline.h"
#include "effects/wordzoom.h"
#include "image/imgfx.h"
#include "kit/kit.h"

using namespace velm;

namespace {

constexpr std::int32_t act = 240; ///< frames

struct Cast {
    Owned<LSTAR_delete> stars{LSTAR_new()};
    Owned<SINELINE_delete> line{SINELINE_new()};
    Owned<SINELINE_delete> second{SINELINE_new()};
    Owned<WORDZOOM_delete> words{WORDZOOM_new()};
    Owned<MUSIC_delete> tune{MUSIC_new()};
    Owned<IMG_delete> glow{IMG_newSized(256, 256)};
};

void prepare(Cast& cast, KIT& kit) {
    cast.stars->colours = kit.hues, cast.stars->turn = 2;
    LSTAR_setCount(cast.stars, 400);
    cast.line->colour = 0x40A0FF, cast.line->echoColour = 0x4010A0, cast.line->echoes = 12;
    cast.second->colour = 0xFF8030, cast.second->echoColour = 0xA01040, cast.second->echoes = 12;
    cast.words->glyphs = kit.pen->glyphs, cast.words->palette = kit.hues;
    WORDZOOM_setText(cast.words, "A WHOLE SMALL DEMO ON ONE PAGE");
    for (const std::int32_t hertz : {55, 82, 110, 165, 220, 247, 330, 440}) {
        SAMPLE* const voice = SAMPLE_new();
        SAMPLE_setLength(voice, SAMPLE_rate);
        SOUND_sine(voice, hertz), SOUND_fadeOut(voice), SOUND_fadeOut(voice);
        SAMPLE_normalize(voice, 30000 - hertz * 30);
        MUSIC_addInstrument(cast.tune, voice);
    }
    cast.tune->period = 30;
    kit.music = cast.tune;
}

/// 0 outside an act, 256 in the middle of it: how much light it gets.
std::int32_t lightOf(std::int32_t frame, std::int32_t begin, std::int32_t end) {
    const std::int32_t nearest = frame - begin < end - frame ? frame - begin : end - frame;
    return nearest < 0 ? 0 : nearest > 32 ? 256 : nearest * 8;
}

} // namespace

int main() {
    Owned<KIT_delete> kit(KIT_new());
    Cast cast;
    prepare(cast, *kit);
    while (KIT_nextFrame(kit)) {
        const std::int32_t frame = kit->frame % (3 * act);
        LSTAR_advance(cast.stars), SINELINE_advance(cast.line), SINELINE_advance(cast.second);
        if (lightOf(frame, 0, 2 * act) > 0) { // the flight, slower when the ribbons come
            cast.stars->speed = frame < act ? 900 : 300;
            LSTAR_draw(cast.stars, kit->screen);
        }
        if (lightOf(frame, act, 3 * act) > 0) { // two ribbons
            SINELINE_draw(cast.line, kit->screen), SINELINE_draw(cast.second, kit->screen);
        }
        if (frame >= 2 * act || frame < act / 2) { // the words, at the end and at the beginning
            WORDZOOM_advance(cast.words), WORDZOOM_draw(cast.words, kit->screen);
        }
        IMGFX_glare8(kit->screen, cast.glow, 3);
        IMG_copy(cast.glow, kit->screen);
        const std::int32_t light = lightOf(frame, 0, 3 * act);
        IMG_subColour(kit->screen, RGB888_dim(0xFFFFFF, 256 - light)); // in from black, and out again
    }
}

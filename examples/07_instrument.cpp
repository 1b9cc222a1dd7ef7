// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// An instrument, made of waves, and what it looks like. It plays a phrase, again and again.
#include "audio/sound.h"
#include "image/imgfx.h"
#include "kit/kit.h"

using namespace velm;
using Tone = Owned<SAMPLE_delete>;

namespace {

constexpr std::int32_t phrase[] = {220, 330, 440, 523, 659, 523, 440, 330}; ///< hertz

/// A struck string: a sine, its octave, its twelfth, and a breath of noise when it is struck.
Tone makeTone(std::int32_t hertz) {
    Tone tone(SAMPLE_new());
    Tone part(SAMPLE_new());
    SAMPLE_setLength(tone, SAMPLE_rate / 2);
    SAMPLE_setLength(part, SAMPLE_rate / 2);
    for (const std::int32_t harmonic : {1, 2, 3}) {
        SOUND_sine(part, hertz * harmonic);
        for (std::int32_t i = 0; i < harmonic; ++i) {
            SOUND_fadeOut(part); // the higher, the shorter
        }
        SAMPLE_divide(part, harmonic);
        SAMPLE_add(tone, part);
    }
    SOUND_noise(part, hertz * 8);
    for (std::int32_t i = 0; i < 8; ++i) {
        SOUND_fadeOut(part);
    }
    SAMPLE_mixScaled(tone, part, 1, 8);
    SAMPLE_normalize(tone, 20000);
    return tone;
}

/// What is being played, from the place where it is: a curve, and echoes of it.
void drawWave(KIT& kit, const SAMPLE* tone, std::int32_t from, std::uint32_t colour) {
    IMG_fill(kit.screen, RGB888_dim(colour, 20));
    for (std::int32_t echo = 6; echo >= 0; --echo) {
        std::int32_t before = 128;
        for (std::int32_t x = 0; x < 256; x += 2) {
            const std::int32_t at = from + x * 4 - 900 * echo;
            const std::int32_t value = at < 0 || at >= tone->length ? 0 : SAMPLE_get(tone, at);
            const std::int32_t y =
                128 + value * (7 + echo) / 1700 + SINE_scaled(6, kit.frame * 12 + echo * 90);
            IMGFX_addLine(kit.screen, x - 2, before, x, y, RGB888_dim(colour, 256 - 36 * echo));
            before = y;
        }
    }
}

} // namespace

int main() {
    Owned<KIT_delete> kit(KIT_new());
    Tone tones[std::size(phrase)];
    for (std::size_t i = 0; i < std::size(phrase); ++i) {
        tones[i] = makeTone(phrase[i]);
        LIST_append(kit->sound->queue, tones[i]);
    }
    while (KIT_nextFrame(kit)) {
        const auto step = static_cast<std::size_t>(kit->frame / 15) % std::size(phrase); // half a second each
        if (kit->sound->queue->count < 2) {
            for (const Tone& tone : tones) {
                LIST_append(kit->sound->queue, tone);
            }
        }
        drawWave(*kit, tones[step], kit->frame % 15 * SAMPLE_rate / 30, RGB888_hue(phrase[step] * 2));
    }
}

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A tune without a score. It is given instruments; every three seconds it composes a pattern of one of them
// and blends it into a bar that goes round. The rings are that bar: a turn is three seconds, the bright ray
// is now.
#include "audio/sound.h"
#include "image/imgfx.h"
#include "kit/kit.h"

using namespace velm;

namespace {

constexpr std::int32_t scale[] = {110, 131, 165, 196, 220,
                                  262, 330, 392, 440, 523}; ///< hertz: A minor's five tones

SAMPLE* makeVoice(std::int32_t hertz, void (*wave)(SAMPLE*, std::int32_t), std::int32_t peak) {
    SAMPLE* const voice = SAMPLE_new();
    SAMPLE_setLength(voice, SAMPLE_rate / 2);
    wave(voice, hertz);
    SOUND_fadeOut(voice), SOUND_fadeOut(voice);
    SAMPLE_normalize(voice, peak);
    return voice;
}

/// The loudest value in a part of the bar: what a ray is long.
std::int32_t loudness(const SAMPLE* bar, std::int32_t part, std::int32_t parts) {
    std::int32_t most = 0;
    for (std::int32_t i = 0; i < bar->length / parts; i += 16) {
        const std::int32_t value = SAMPLE_get(bar, part * (bar->length / parts) + i);
        most = value > most ? value : most;
    }
    return most;
}

} // namespace

int main() {
    Owned<KIT_delete> kit(KIT_new());
    Owned<MUSIC_delete> tune(MUSIC_new());
    tune->period = 30;
    for (const std::int32_t hertz : scale) {
        MUSIC_addInstrument(tune, makeVoice(hertz, SOUND_sine, 30000));
        MUSIC_addInstrument(tune, makeVoice(hertz * 2, SOUND_square, 9000));
        MUSIC_addInstrument(tune, makeVoice(hertz * 20, SOUND_noise, 7000));
    }
    kit->music = tune;
    while (KIT_nextFrame(kit)) {
        constexpr std::int32_t parts = 720;
        const std::int32_t now = kit->frame * 8 % parts; // 90 frames are a bar
        for (std::int32_t part = 0; part < parts; ++part) {
            const std::int32_t angle = part * 1024 / parts - 256;
            const std::int32_t reach = 42 + loudness(tune->bar, part, parts) / 45;
            const std::int32_t age = (now - part + parts) % parts;
            const std::uint32_t hue =
                RGB888_dim(RGB888_hue(part * 1536 / parts), age < 144 ? 256 - age : 112);
            IMGFX_addLine(kit->screen, 128 + SINE_cosineScaled(38, angle), 128 + SINE_scaled(38, angle),
                          128 + SINE_cosineScaled(reach, angle), 128 + SINE_scaled(reach, angle), hue);
        }
    }
}

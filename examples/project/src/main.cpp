// @NAME@: rings on water, its name, and a tune.
#include "audio/sound.h"
#include "kit/kit.h"
#include "rings.h"

#include <string_view>

using namespace velm;

namespace {

constexpr std::string_view title = "@NAME@";

/// Voices of five tones; the tune makes the rest.
void addVoices(MUSIC* tune) {
    for (const std::int32_t hertz : {110, 165, 220, 247, 330, 440, 494, 660}) {
        SAMPLE* const voice = SAMPLE_new();
        SAMPLE_setLength(voice, SAMPLE_rate);
        SOUND_sine(voice, hertz), SOUND_fadeOut(voice), SOUND_fadeOut(voice);
        SAMPLE_normalize(voice, 26000 - hertz * 20);
        MUSIC_addInstrument(tune, voice);
    }
}

/// The name, letter by letter, on a wave.
void drawTitle(KIT& kit) {
    const auto count = static_cast<std::int32_t>(title.size());
    LFONT_setColour(kit.pen, 0xFFFFFF);
    for (std::int32_t i = 0; i < count; ++i) {
        LFONT_place(kit.pen, 128 - count * 8 + i * 16, 120 + SINE_scaled(16, kit.frame * 20 - i * 60), 1);
        kit.pen->character = title[static_cast<std::size_t>(i)];
        LFONT_drawChar(kit.pen);
    }
}

} // namespace

int main() {
    Owned<KIT_delete> kit(KIT_new());
    Owned<RINGS_delete> rings(RINGS_new());
    Owned<MUSIC_delete> tune(MUSIC_new());
    if (kit == nullptr || rings == nullptr || tune == nullptr) {
        return 1;
    }
    addVoices(tune);
    tune->period = 45; // frames from pattern to pattern
    kit->music = tune;
    while (KIT_nextFrame(kit)) {
        RINGS_advance(rings);
        RINGS_draw(rings, kit->screen);
        drawTitle(*kit);
    }
}

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The demo's one state and its settings. `demo` owns every record that start-up and the scenes make; nothing
// is freed, the process's end takes it all down. `settings` is initialised data that keys and scenes change.
//
//     demo.fps->targetRate = 60;
//     settings.scrollOn ^= 1;
#pragma once

// IWYU pragma: begin_exports
#include "audio/music.h"
#include "audio/sample.h"
#include "demo/fps.h"
#include "effects/ball3d.h"
#include "effects/distx.h"
#include "effects/disty.h"
#include "effects/lfont.h"
#include "effects/logofly.h"
#include "effects/mouse.h"
#include "effects/raster.h"
#include "effects/scroll.h"
#include "effects/sinedots.h"
#include "foundation/dir.h"
#include "foundation/list.h"
#include "foundation/random.h"
#include "image/img.h"
#include "image/rgb888.h"
#include "platform/kbd.h"
#include "platform/xdpy.h"
#include "platform/xkbd.h"
#include "platform/xptr.h"
#include "platform/xsnd.h"
#include "vector/font.h"
#include "vector/obj2d.h"
#include "vector/seg2d.h"
#include "vector/vec2d.h"
// IWYU pragma: end_exports

#include <array>
#include <cstdint>

namespace velm {

inline constexpr std::uint8_t controlExit = 1;     ///< bit of DemoState::control: Escape was pressed
inline constexpr std::uint8_t controlNextPart = 2; ///< bit of DemoState::control: the scene's last frame
inline constexpr std::uint8_t overlayRate = 1;     ///< bit of DemoState::overlay: the frame rate is shown
inline constexpr std::uint8_t overlaySpare = 2;    ///< bit of DemoState::overlay: read by nothing
inline constexpr std::int32_t hueCount = RGB888_hueCount; ///< colours of the hue ramp

/// How `screen` is prepared once it has been presented.
enum class ClearMode : std::uint8_t { black, white, background, fade };

struct DemoState {
    XKBD* keyboard;
    XSND* sound; ///< exists even without a device; it then plays nothing
    XDPY* display;
    XPTR* pointer;
    KBD* keyTable;     ///< not used by the scenes
    IMG* screen;       ///< what every layer draws into, of the window's size
    IMG* glareImage;   ///< `screen` through the glare filter, or a copy
    IMG* blurImage;    ///< `glareImage` through the blur filter, or a copy
    RANDOM* random;    ///< the program's own generator
    FPS* fps;          ///< the frame clock of all scenes
    SAMPLE* hueRamp;   ///< hueCount colours around the hue circle, from green to green
    LFONT* textSmall;  ///< 8 by 8 line text
    LIST* fontSmall;   ///< its glyphs, moved by (-4, -4)
    LFONT* textMedium; ///< 16 by 16 line text: overlay, bobbing letters, flying logo
    LIST* fontMedium;  ///< its glyphs, as parsed
    LFONT* textLarge;  ///< draws the default scene's big figure
    LIST* fontLarge;   ///< the drawings, moved by (-8, -8)
    FONT* fontBitmap1; ///< 16 by 16, the glyph sheet
    FONT* fontBitmap2; ///< 16 by 16, the sheet's first row over a light ground
    FONT* fontBitmap3; ///< 32 by 64, shaded
    FONT* fontBitmap4; ///< 16 by 16, digit column A
    FONT* fontBitmap5; ///< 16 by 16, the rolling digits
    FONT* fontBitmap6; ///< 16 by 16, digit column B
    IMG* stripImage;   ///< 8 by 128 colours
    IMG* logoImage;    ///< 128 by 64, shown while starting
    IMG* pictureWide;  ///< 256 by 128
    IMG* pictureA;     ///< 128 by 64
    IMG* pictureB;     ///< 128 by 64
    IMG* pictureMask;  ///< 256 by 128, black and white
    MOUSE* mouseTrail; ///< the pointer picture
    MUSIC* music;      ///< the tune and its instruments
    LOGOFLY* logoFly;  ///< the hopping word of interlude B
    IMG* scrollStrip;  ///< 512 by 16: the scroll text
    IMG* rasterTarget; ///< 512 by 16: the bars that colour it
    SCROLL* scroller;
    DISTX* waveRows;           ///< bends scrollStrip by rows
    DISTY* waveColumns;        ///< bends its own strip by columns; owns that strip
    RASTER* rasters;           ///< 6144 colours for the scroll text
    RASTER* rastersSecond;     ///< one colour per line of the window
    SAMPLE* palette;           ///< hueCount colours: 96 shaded bars of 16
    DIR* dirListing;           ///< the working folder's names; filled by unscheduled scenes only
    std::int32_t dirSelection; ///< the selected entry of dirListing
    BALL3D* ball;              ///< made by the first interlude A
    OBJ2D* mesh;               ///< the grid of interlude B, made by its first run
    OBJ2D* meshView;           ///< its segments, placed in the window
    SINEDOTS* dots;            ///< exists while the default scene runs
    std::int32_t framesLeft;   ///< after so many frames the scene ends as if Space was pressed; 0: by itself
    std::uint8_t control;      ///< controlExit, controlNextPart
    std::uint8_t overlay;      ///< overlayRate, overlaySpare
    std::uint8_t blur;         ///< 1: the blur filter is on
    std::uint8_t glare;        ///< 1: the glare filter is on
    std::uint8_t paused;       ///< 1: the pause is in force
    std::uint8_t muted;        ///< 1: the music stands still
    ClearMode clearMode;       ///< black at start
    std::uint32_t background;  ///< 0x000000 or 0xFFFFFF
};

/// One of the three waves of interlude B's mesh, drawn anew by each run.
struct MeshWave {
    std::int32_t phase;     ///< 0..1023, moved by `speed` every frame
    std::int32_t speed;     ///< 1/1024 turns per frame
    std::int32_t amplitude; ///< pixels
    std::int32_t frequency; ///< 1/1024 turns per grid line
};

struct DemoSettings {
    std::uint8_t scrollOn = 1;  ///< key 1
    std::uint8_t flag2 = 1;     ///< key 2; read by nothing
    std::uint8_t flag3 = 1;     ///< keys 3 and 7 (bits 0 and 2); read by nothing
    std::uint8_t rastersOn = 1; ///< key 4
    std::uint8_t fadeOn = 1;    ///< key f: the fade of ClearMode::fade
    std::uint8_t flagS = 1;     ///< key s; read by unscheduled scenes only
    std::int32_t windowWidth = 256;
    std::int32_t windowHeight = 256;
    std::uint32_t fadeStep = 0x010101; ///< per-frame amount of the fade
    std::int32_t largeTextIndex = 1;   ///< which drawing the default scene turns
    std::int32_t barHeight = 59;       ///< of the raster layer; only barSpacing is made of it
    std::int32_t barCount = 0;         ///< drawn by the raster set-up: 8..27
    std::int32_t barSpacing = 0;       ///< 48 - barHeight after the raster set-up
    std::int32_t lettersX = 176;       ///< left edge of the bobbing letters
    std::int32_t lettersY = 240;       ///< the line that they bounce on
    std::int32_t meshColumns = 64;
    std::int32_t meshRows = 64;
    std::int32_t meshStepX = 6; ///< pixels between grid lines
    std::int32_t meshStepY = 6; ///< pixels between grid lines
    MeshWave meshWave1{};       ///< along the rows
    MeshWave meshWave2{};       ///< along the columns
    MeshWave meshWave3{};       ///< moves nothing: see docs/quirks.md
    /// The profile of a shaded bar, laid over each group of 16 hues of the palette.
    std::array<std::uint32_t, 16> barProfile = {0x000000, 0x606060, 0xA0A0A0, 0xC0C0C0, 0xD0D0D0, 0xE0E0E0,
                                                0xF0F0F0, 0xFFFFFF, 0xFFFFFF, 0xF0F0F0, 0xE0E0E0, 0xD0D0D0,
                                                0xC0C0C0, 0xA0A0A0, 0x606060, 0x000000};
};

extern DemoState demo;
extern DemoSettings settings;

} // namespace velm

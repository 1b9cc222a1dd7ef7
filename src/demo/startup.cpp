// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Start-up. Its order is part of the demo: constructors draw random numbers, and the logo is on the screen
// before anything slow happens.
#include "demo/assets.h"
#include "demo/instruments.h"
#include "demo/state.h"
#include "demo/velm4030.h"
#include "effects/partixel.h"
#include "foundation/asset.h"
#include "foundation/chance.h"
#include "foundation/heap.h"
#include "image/imgfx.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace velm {

namespace {

constexpr std::uint32_t firstSeed = 8810;
constexpr std::uint32_t secondSeed = 273880913;
constexpr std::uint32_t ownGeneratorSeed = 0x6789ABCD;
constexpr std::int32_t startRate = 30;
constexpr std::size_t startMemory = 24 << 20; // instruments 15 MiB, pictures 3, and some to spare

IMG* decodeInverted(const ASSET& asset) {
    IMG* const img = assets::decode(asset);
    IMGFX_invert(img);
    return img;
}

void openDevices() {
    demo.display = XDPY_open();
    demo.keyboard = XKBD_new();
    demo.sound = XSND_new();
    demo.pointer = XPTR_new();
}

void makeScreen() {
    demo.screen = IMG_new();
    if (demo.display != nullptr) {
        IMG_setSize(demo.screen, static_cast<std::int32_t>(demo.display->width),
                    static_cast<std::int32_t>(demo.display->height));
    }
}

void showLogo() {
    demo.logoImage = decodeInverted(assets::logo);
    if (demo.logoImage == nullptr) {
        return;
    }
    const std::int32_t width = demo.logoImage->width;
    const std::int32_t height = demo.logoImage->height;
    IMG_blit(demo.logoImage, demo.screen, 0, 0, (settings.windowWidth - width) / 2,
             (settings.windowHeight - height) / 2, width, height);
    XDPY_present(demo.display, demo.screen);
}

void decodePictures() {
    demo.pictureA = assets::decode(assets::picture_a);
    demo.pictureB = assets::decode(assets::picture_b);
    demo.pictureMask = decodeInverted(assets::picture_mask);
    demo.pictureWide = assets::decode(assets::picture_wide);
}

void makeLogoFly() {
    constexpr std::int32_t x = 96;
    constexpr std::int32_t y = 224;
    demo.logoFly = LOGOFLY_new();
    if (demo.logoFly == nullptr) {
        return;
    }
    demo.logoFly->x = x;
    demo.logoFly->y = y;
    demo.logoFly->text = "VELM";
    demo.logoFly->pen = demo.textMedium;
    demo.logoFly->colour = 0xFFFFFF;
    demo.logoFly->target = demo.screen;
}

void makeMouse() {
    demo.mouseTrail = MOUSE_new();
    if (demo.mouseTrail != nullptr) {
        demo.mouseTrail->pointer = demo.pointer;
        demo.mouseTrail->target = demo.screen;
        demo.mouseTrail->image = assets::decode(assets::pointer);
    }
}

void makeGenerator() {
    demo.random = RANDOM_new();
    if (demo.random != nullptr) {
        demo.random->counter = ownGeneratorSeed;
    }
    PARTIXEL_random = demo.random;
}

void makeClock() {
    demo.fps = FPS_new();
    VELM4030_setFrameRate(startRate);
}

} // namespace

void VELM4030_init() {
    reserveHeap(startMemory);
    openDevices();
    makeScreen();
    demo.keyTable = KBD_new();
    chanceSeed(firstSeed);
    showLogo();
    demo.glareImage = IMG_newSized(settings.windowWidth, settings.windowHeight);
    demo.blurImage = IMG_newSized(settings.windowWidth, settings.windowHeight);
    // One generator decides all, so the draws from here on do not depend on those before.
    chanceSeed(secondSeed);
    decodePictures();
    VELM4030_hueRampSetup();
    VELM4030_rasterSetup();
    VELM4030_bitmapFontSetup();
    VELM4030_lineFontSetup();
    demo.background = 0;
    makeLogoFly();
    makeMouse();
    demo.music = VELM4030_buildMusic();
    makeGenerator();
    makeClock();
}

bool VELM4030_isComplete() {
    const IMG* const images[] = {demo.screen, demo.glareImage, demo.blurImage};
    return demo.keyboard != nullptr && demo.fps != nullptr &&
           std::all_of(std::begin(images), std::end(images),
                       [](const IMG* img) { return XDPY_accepts(demo.display, img); });
}

void VELM4030_start() {
    VELM4030_init();
    if (!VELM4030_isComplete()) {
        std::fputs("velm4030: out of memory\n", stderr);
        std::exit(EXIT_FAILURE);
    }
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/shared.h"

#include "demo/state.h"

#include <algorithm>
#include <iterator>

namespace velm {

namespace {

/// Deletes a record, where there is one.
template <typename Record>
void drop(Record*& record, void (*deleteRecord)(Record**)) {
    if (record != nullptr) {
        deleteRecord(&record);
    }
}

void dropMesh(OBJ2D*& mesh) {
    if (mesh != nullptr) {
        OBJ2D_deleteSegments(mesh);
        OBJ2D_delete(&mesh);
    }
}

} // namespace

bool isStocked() {
    const void* const stock[] = {demo.hueRamp,     demo.textSmall,  demo.textMedium, demo.textLarge,
                                 demo.fontSmall,   demo.fontMedium, demo.fontLarge,  demo.fontBitmap3,
                                 demo.pictureWide, demo.pictureA,   demo.pictureB,   demo.pictureMask};
    return std::find(std::begin(stock), std::end(stock), nullptr) == std::end(stock) &&
           demo.fontLarge->count > 0;
}

void dropShared() {
    if (demo.waveColumns != nullptr) {
        drop(demo.waveColumns->source, IMG_delete);
    }
    drop(demo.waveColumns, DISTY_delete);
    drop(demo.waveRows, DISTX_delete);
    drop(demo.scroller, SCROLL_delete);
    drop(demo.scrollStrip, IMG_delete);
    drop(demo.rasterTarget, IMG_delete);
    drop(demo.rasters, RASTER_delete);
    drop(demo.rastersSecond, RASTER_delete);
    drop(demo.palette, SAMPLE_delete);
    drop(demo.ball, BALL3D_delete);
    dropMesh(demo.mesh);
    dropMesh(demo.meshView);
}

void drawScrollText() {
    if (settings.rastersOn != 0) {
        VELM4030_rasterLayer();
    }
    if (settings.scrollOn != 0) {
        VELM4030_scrollLayer();
    }
}

ScrollText::ScrollText(std::int32_t y) {
    VELM4030_rasterSetup();
    VELM4030_scrollSetup();
    VELM4030_placeScroll(y);
}

} // namespace velm

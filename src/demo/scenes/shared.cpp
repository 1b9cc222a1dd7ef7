// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/shared.h"

#include "demo/state.h"
#include "vector/cursor.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace velm {

namespace {

/// Deletes a record, where there is one.
template <typename Record>
void drop(Record*& record, void (*deleteRecord)(Record**)) {
    if (record != nullptr) {
        deleteRecord(&record);
    }
}

/// Mesh and view have the same segments.
void dropMesh() {
    if (demo.mesh != nullptr) {
        OBJ2D_deleteSegments(demo.mesh);
    }
    drop(demo.mesh, OBJ2D_delete);
    drop(demo.meshView, OBJ2D_delete);
}

/// True for a line that is read rather than looked at: long, and made of letters for the most part.
bool isProse(std::string_view line) {
    constexpr std::size_t shortest = 48;
    const auto letters = std::count_if(line.begin(), line.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
    return line.size() >= shortest && 2 * letters > static_cast<std::ptrdiff_t>(line.size());
}

/// Moves the text on so that the next line of prose comes in at the middle. A text without prose stays.
void goToProse(SCROLL& scroller) {
    constexpr std::int32_t lead = 8; // characters of the view before it
    const std::string_view text = scroller.text;
    const auto from = static_cast<std::size_t>(scroller.cursor->index);
    for (std::size_t gone = 0; gone < text.size(); ++gone) {
        const std::size_t at = (from + gone) % text.size();
        const bool isStart = at == 0 || text[at - 1] == '\n';
        if (isStart && isProse(text.substr(at, text.find('\n', at) - at))) {
            CURSOR_setIndex(scroller.cursor, static_cast<std::int32_t>(at) - lead);
            return;
        }
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
    dropMesh();
}

ScrollText::ScrollText(std::int32_t y) {
    VELM4030_rasterSetup();
    VELM4030_scrollSetup();
    VELM4030_placeScroll(y);
    bars = Owned<IMG_delete>(IMG_clone(demo.rasterTarget));
    if (demo.scroller != nullptr && demo.scroller->cursor != nullptr && demo.scroller->text != nullptr) {
        goToProse(*demo.scroller);
    }
}

void ScrollText::draw(std::int32_t weight) {
    constexpr std::uint32_t grey = 0x010101;
    const std::int32_t darker = 255 - std::clamp(weight, 0, 255);
    const bool isDarker = darker > 0 && bars != nullptr;
    if (settings.rastersOn != 0) {
        VELM4030_rasterLayer();
    }
    if (isDarker) {
        IMG_copy(demo.rasterTarget, bars);
        IMG_subColour(demo.rasterTarget, static_cast<std::uint32_t>(darker) * grey);
    }
    if (settings.scrollOn != 0) {
        VELM4030_scrollLayer();
    }
    if (isDarker) {
        IMG_copy(bars, demo.rasterTarget);
    }
}

} // namespace velm

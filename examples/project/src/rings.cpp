#include "rings.h"

#include "foundation/record.h"
#include "foundation/root.h"
#include "image/rgb888.h"

using namespace velm;

namespace {

void ignore() {}

/// The distances as seen from a stone that is `x`, `y` pixels off the middle of the picture.
const std::uint16_t* around(const RINGS& rings, std::int32_t x, std::int32_t y) {
    return rings.distance + (RINGS::size / 4 - y) * RINGS::size + RINGS::size / 4 - x;
}

} // namespace

RINGS* RINGS_new() {
    return newRecord<RINGS>(ignore, RINGS_delete, [](RINGS& rings) {
        rings.distance = allocateArray<std::uint16_t>(RINGS::size * RINGS::size);
        for (std::int32_t i = 0; rings.distance != nullptr && i < RINGS::size * RINGS::size; ++i) {
            const std::int32_t x = i % RINGS::size - RINGS::size / 2;
            const std::int32_t y = i / RINGS::size - RINGS::size / 2;
            rings.distance[i] = static_cast<std::uint16_t>(rootOf(x * x + y * y));
        }
        return rings.distance != nullptr;
    });
}

void RINGS_advance(RINGS* rings) {
    rings->phase += rings->speed;
    rings->wander += 3;
    rings->hue += 2;
}

void RINGS_draw(const RINGS* rings, IMG* target) {
    const std::int32_t way = rings->wander;
    const std::uint16_t* first = around(*rings, SINE_scaled(100, way), SINE_scaled(80, way * 2));
    const std::uint16_t* second = around(*rings, SINE_scaled(90, way * 2 + 400), SINE_scaled(110, way + 700));
    for (std::int32_t y = 0; y < target->height; ++y, first += RINGS::size, second += RINGS::size) {
        for (std::int32_t x = 0; x < target->width; ++x) {
            const std::int32_t crest = SINE_entry(first[x] * rings->density / 4 - rings->phase) +
                                       SINE_entry(second[x] * rings->density / 4 - rings->phase);
            const std::int32_t light = crest < 0 ? 0 : crest >> 8;
            const std::uint32_t colour = RGB888_hue(rings->hue + 900 + light * 2);
            rowOf(*target, y)[x] = RGB888_dim(colour, light);
        }
    }
}

void RINGS_delete(RINGS** handle) {
    deleteRecord(handle, ignore, &RINGS::distance);
}

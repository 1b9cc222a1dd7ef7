// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "effects/sinescan.h"
#include "foundation/wrap.h"
#include "support/owned.h"

namespace velm::test {
namespace {

using Scan = Owned<SINESCAN_delete>;
constexpr SINESCAN_WAY ways[] = {SINESCAN_WAY::rows, SINESCAN_WAY::columns, SINESCAN_WAY::twister};

/// A scan of a picture that leaves it as it is.
SINESCAN* straight(const IMG* source) {
    SINESCAN* scan = SINESCAN_new();
    scan->source = source;
    scan->width = source->width, scan->height = source->height;
    scan->shift.reach = scan->stretch.reach = scan->scan.reach = scan->twist.reach = scan->shade = 0;
    return scan;
}

TEST(Sinescan, CopiesWhatNoWaveBends) {
    const Picture source(noise(37, 21, 3));
    const Scan scan(straight(source));
    for (const SINESCAN_WAY way : {SINESCAN_WAY::rows, SINESCAN_WAY::columns}) {
        for (const auto& [x, y] : {std::pair{30, 20}, {2, 3}, {59, 39}, {-200, 20}, {30, 300}}) {
            const Picture bent(noise(60, 40, 4));
            const Picture copied(noise(60, 40, 4));
            scan->way = way, scan->x = x, scan->y = y;
            SINESCAN_draw(scan, bent);
            IMG_blit(source, copied, 0, 0, x - 18, y - 10, 37, 21);
            ASSERT_EQ(difference(bent, copied), "") << x << ", " << y;
        }
    }
}

TEST(Sinescan, ShiftsScansAndTurnsOverLineByLine) {
    const Picture source(noise(30, 16, 5));
    const Scan scan(straight(source));
    scan->x = 40, scan->y = 8;
    SINE_setup(&scan->shift.wave, 1024, 256, 0, 0, 40);
    SINE_setup(&scan->scan.wave, 1024, 0, 0, 0, 64);
    scan->shift.reach = 20, scan->scan.reach = 9, scan->pinned = 1;
    const Picture bent(IMG_newSized(80, 16));
    const Picture expected(IMG_newSized(80, 16));
    SINESCAN_draw(scan, bent);
    for (std::int32_t y = 0; y < 16; ++y) {
        const std::int32_t row = positiveModulo(y + SINE_scaled(9, 64 * y), 16);
        const std::int32_t shift = SINE_scaled(20, 256 + 40 * y) * y / 16;
        IMG_blit(source, expected, 0, row, 25 + shift, y, 30, 1);
    }
    EXPECT_EQ(difference(bent, expected), "");

    // A stretch of -512 / 256 turns every line over at its own length.
    const Scan turned(straight(source));
    SINE_setup(&turned->stretch.wave, 1024, 256, 0, 0, 0);
    turned->stretch.reach = -512;
    turned->x = 15, turned->y = 8;
    const Picture mirrored(IMG_newSized(30, 16));
    SINESCAN_draw(turned, mirrored);
    for (std::int32_t i = 0; i < 30 * 16; ++i) {
        ASSERT_EQ(IMG_getPixel(mirrored, i % 30, i / 30), IMG_getPixel(source, 29 - i % 30, i / 30));
    }
}

TEST(Sinescan, StaysInsideWhateverTheWavesDo) {
    Images random(6);
    const Picture source(noise(33, 9, 7));
    const Picture target(noise(50, 40, 8));
    const Scan scan(straight(source));
    for (std::int32_t i = 0; i < 900; ++i) {
        SINESCAN_randomize(scan);
        for (SINESCAN_WAVE* wave : {&scan->shift, &scan->stretch, &scan->scan, &scan->twist}) {
            wave->reach = random.number(-1, 1) * (1 << random.number(0, 30));
        }
        scan->way = ways[i % 3];
        scan->x = random.number(-90, 90), scan->y = random.number(-90, 90);
        scan->width = random.number(-5, 200), scan->height = random.number(-5, 5000);
        scan->pinned = i % 2;
        SINESCAN_advance(scan), SINESCAN_draw(scan, target);
    }
}

} // namespace
} // namespace velm::test

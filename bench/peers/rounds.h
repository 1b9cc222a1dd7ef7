// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The same work, done by us and by our peers in turns, and the table of what it took. Each has memory
// of its own, gets what it needs before the clock runs, and is warm when it does.
//
//     compare(table, "additive blit", {{"ours", [&] { IMGFX_addBlit(...); }, {}},
//                                      {"pixman", [&] { pixman_image_composite32(...); },
//                                       [&] { return agreement(*ours.to, theirs.pixels, 0); }}});
//     printTable(table);
#pragma once

#include "foundation/owned.h"
#include "image/img.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace velm::peers {

/// A picture's size. Sounds and bundles of lines are as long as a picture has pixels.
struct Size {
    std::int32_t width, height;
    std::int32_t pixels() const { return width * height; }
};

inline constexpr std::array<Size, 3> sizes = {{{256, 256}, {1920, 1080}, {3840, 2160}}};

/// How close a result comes to ours, in words, and whether that is as close as it has to be.
struct Agreement {
    std::string words;
    bool holds;
};

/// One who does the work.
struct Contender {
    std::string name;
    std::function<void()> run;           ///< does the work once
    std::function<Agreement()> compared; ///< looks at the first results; empty where there is none
};

/// Processor time of one run, in nanoseconds, and what that is for a pixel.
struct Cost {
    double least, median;
    double leastOfPixel;
};

/// What one peer did at all sizes, beside us.
struct Row {
    std::string work, peer, agreement;
    std::vector<Cost> ours, theirs; ///< in the order of `sizes`
};

struct Table {
    Size size;             ///< what is measured now
    std::vector<Row> rows; ///< what has been measured
    bool agreed = true;    ///< every result was what it should be
};

/// Lets the contenders, the first of which are we, do the work in turns, and adds what they took to the rows
/// of the table. Their first results are compared. The work has `pixels` pixels.
void compare(Table& table, const std::string& work, std::int64_t pixels,
             const std::vector<Contender>& contenders);

/// The same for as many pixels as the table's size has.
void compare(Table& table, const std::string& work, const std::vector<Contender>& contenders);

/// The table as Markdown, ratios first: ours to theirs, of the minima and, in brackets, of the medians.
void printTable(const Table& table);

/// Largest difference of a channel between our picture and as many words whose low 24 bits are 0x00RRGGBB.
Agreement agreement(const IMG& ours, const void* theirs, std::int32_t tolerance);

/// A difference in words: "same" or "within N"; more than the tolerance does not hold.
Agreement agreementWithin(std::int64_t difference, std::int64_t tolerance);

/// A picture of noise without black, through which round black holes go where `holes` says so.
Owned<IMG_delete> noise(Size size, bool holes = false);

// The topics, each in a file of its own, at the size that the table has.
void blits(Table& table);
void filters(Table& table);
void decoding(Table& table);
void lines(Table& table);
void sound(Table& table);

} // namespace velm::peers

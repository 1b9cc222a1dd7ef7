// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Records that clean up after themselves, and pictures to compare.
//
//     const Picture screen(noise(64, 48, 1));
//     EXPECT_EQ(firstDifference(screen, expected), "");
#pragma once

#include "image/img.h"

#include <cstdint>
#include <random>
#include <sstream>
#include <string>

namespace velm::test {

template <typename Record, void (*Delete)(Record**)>
class Owned {
public:
    explicit Owned(Record* made) : record(made) {}
    ~Owned() { Delete(&record); }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    operator Record*() const { return record; }
    Record* operator->() const { return record; }

private:
    Record* record;
};

using Picture = Owned<IMG, IMG_delete>;

/// Random pixels, many of them 0 or white.
inline IMG* noise(std::int32_t width, std::int32_t height, std::uint32_t seed) {
    std::mt19937 random(seed);
    IMG* img = IMG_newSized(width, height);
    for (std::int32_t i = 0; i < width * height; ++i) {
        const auto choice = random() % 6;
        img->pixels[i] = choice < 2 ? 0 : choice < 3 ? 0xFFFFFF : random() & 0xFFFFFFU;
    }
    return img;
}

/// Names the first pixel that differs between two pictures of one size, which must have some; "" when none
/// does.
inline std::string firstDifference(const IMG* a, const IMG* b) {
    const std::int32_t count = a->width * a->height;
    std::ostringstream text;
    text << (count == 0 || b->width != a->width || b->height != a->height ? "sizes" : "");
    for (std::int32_t i = 0; i < count && text.str().empty(); ++i) {
        if (a->pixels[i] != b->pixels[i]) {
            text << i % a->width << ", " << i / a->width << std::hex << ": " << a->pixels[i] << ", "
                 << b->pixels[i];
        }
    }
    return text.str();
}

} // namespace velm::test

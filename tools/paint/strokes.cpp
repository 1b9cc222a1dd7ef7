// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "paint/strokes.h"

#include <cctype>

namespace velm::paint {

namespace {

std::int32_t digitValue(char digit) {
    return std::isdigit(static_cast<unsigned char>(digit)) != 0 ? digit - '0' : digit - 'A' + 10;
}

} // namespace

void appendPolyline(Strokes& strokes, const std::vector<Point>& points) {
    if (points.size() == 1) {
        strokes.push_back({points[0], points[0], true});
    }
    for (std::size_t i = 1; i < points.size(); ++i) {
        strokes.push_back({points[i - 1], points[i], i == 1});
    }
}

Strokes parseStrokes(std::string_view shorthand) {
    Strokes strokes;
    std::vector<Point> points;
    for (std::size_t i = 0; i < shorthand.size(); ++i) {
        if (shorthand[i] == ',') {
            appendPolyline(strokes, points);
            points.clear();
        } else if (shorthand[i] != ' ' && i + 1 < shorthand.size()) {
            points.push_back({digitValue(shorthand[i]), digitValue(shorthand[i + 1])});
            ++i;
        }
    }
    appendPolyline(strokes, points);
    return strokes;
}

void drawStrokes(IMG& img, const Strokes& strokes, std::int32_t x, std::int32_t y, std::int32_t w,
                 std::int32_t h, std::uint32_t colour) {
    for (const auto& [from, to, starts] : strokes) {
        for (std::int32_t dy = 0; dy < h; ++dy) {
            for (std::int32_t dx = 0; dx < w; ++dx) {
                IMG_drawLine(&img, x + from.x + dx, y + from.y + dy, x + to.x + dx, y + to.y + dy, colour);
            }
        }
    }
}

} // namespace velm::paint

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Filters along the row and fades of whole pictures: OpenCV, on four channels of 8 bits.
#include "image/imgfx.h"
#include "rounds.h"

#include <cstring>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

namespace velm::peers {

namespace {

const cv::Point centre(-1, -1);

cv::Mat matrix(const IMG& picture) {
    return cv::Mat(picture.height, picture.width, CV_8UC4, picture.pixels).clone();
}

/// Copies the bytes of the picture, and nothing else.
Contender limit(const IMG& from, const Owned<IMG_delete>& to) {
    return {"memcpy",
            [&] {
                std::memcpy(to->pixels, from.pixels,
                            sizeof(*from.pixels) * static_cast<std::size_t>(from.width) *
                                static_cast<std::size_t>(from.height));
            },
            {}};
}

void blur(Table& table, IMG& src) {
    const Owned<IMG_delete> to(IMG_newSized(src.width, src.height));
    const Owned<IMG_delete> copy(IMG_newSized(src.width, src.height));
    const cv::Mat from = matrix(src);
    const cv::Mat taps = (cv::Mat_<float>(1, 5) << 0.125F, 0.125F, 0.5F, 0.125F, 0.125F);
    // OpenCV rounds to the nearest; a little less than a half below that is down, as we round.
    constexpr double down = -0.4375;
    cv::Mat filtered, gaussian;
    const auto filter = [&] { cv::filter2D(from, filtered, -1, taps, centre, down, cv::BORDER_CONSTANT); };
    // Other weights, and the fastest that OpenCV has for five taps.
    const auto weighBell = [&] {
        cv::GaussianBlur(from, gaussian, cv::Size(5, 1), 1.0, 1.0, cv::BORDER_CONSTANT);
    };
    compare(table, "blur, 5 taps",
            {{"ours", [&] { IMGFX_blur(&src, to); }, {}},
             {"OpenCV filter2D", filter, [&] { return agreement(*to, filtered.data, 0); }},
             {"OpenCV GaussianBlur", weighBell,
              [] {
                  return Agreement{"other weights", true};
              }},
             limit(src, copy)});
}

void blurRadius(Table& table, IMG& src) {
    constexpr std::int32_t radius = 20;
    const Owned<IMG_delete> to(IMG_newSized(src.width, src.height));
    const Owned<IMG_delete> copy(IMG_newSized(src.width, src.height));
    const cv::Mat from = matrix(src);
    cv::Mat blurred;
    const auto box = [&] {
        cv::blur(from, blurred, cv::Size(2 * radius + 1, 1), centre, cv::BORDER_CONSTANT);
    };
    compare(table, "blur, radius 20",
            {{"ours", [&] { IMGFX_blurRadius(&src, to, radius); }, {}},
             {"OpenCV blur", box, [&] { return agreement(*to, blurred.data, 1); }},
             limit(src, copy)});
}

void fades(Table& table, const IMG& src) {
    constexpr std::uint32_t colour = 0x010203;
    const cv::Scalar scalar(3, 2, 1, 0);
    const Owned<IMG_delete> added(IMG_clone(&src));
    const Owned<IMG_delete> subtracted(IMG_clone(&src));
    const Owned<IMG_delete> copy(IMG_newSized(src.width, src.height));
    const cv::Mat plain(src.height, src.width, CV_8UC4, scalar);
    cv::Mat sum = matrix(src), picturesSum = matrix(src), difference = matrix(src),
            picturesDifference = matrix(src);
    compare(table, "colour added",
            {{"ours", [&] { IMG_addColour(added, colour); }, {}},
             {"OpenCV, a colour", [&] { cv::add(sum, scalar, sum); },
              [&] { return agreement(*added, sum.data, 0); }},
             {"OpenCV, a picture", [&] { cv::add(picturesSum, plain, picturesSum); },
              [&] { return agreement(*added, picturesSum.data, 0); }},
             limit(src, copy)});
    compare(table, "colour subtracted",
            {{"ours", [&] { IMG_subColour(subtracted, colour); }, {}},
             {"OpenCV, a colour", [&] { cv::subtract(difference, scalar, difference); },
              [&] { return agreement(*subtracted, difference.data, 0); }},
             {"OpenCV, a picture", [&] { cv::subtract(picturesDifference, plain, picturesDifference); },
              [&] { return agreement(*subtracted, picturesDifference.data, 0); }},
             limit(src, copy)});
}

} // namespace

void filters(Table& table) {
    const Owned<IMG_delete> src = noise(table.size);
    blur(table, *src);
    blurRadius(table, *src);
    fades(table, *src);
}

} // namespace velm::peers

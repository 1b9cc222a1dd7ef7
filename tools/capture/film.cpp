// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/film.h"

#include "capture/console.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace velm {

namespace {

constexpr std::int64_t microsPerSecond = 1000000;
constexpr std::int64_t samplesPerSecond = 44100;

} // namespace

Film::Film(std::string finalPath, const FilmLook& look)
    : path(std::move(finalPath)), film(path), pictures(path), samples(path), framesPerSecond(look.rate) {
    if (film.stream() == nullptr || pictures.stream() == nullptr || samples.stream() == nullptr) {
        fail(std::strerror(errno));
        return;
    }
    pictures.becomeNameless();
    samples.becomeNameless();
    soundtrack.emplace(samples.stream(), look.gain);
    if (!startEncoder(look.scale)) {
        fail(errno == ENOENT ? "ffmpeg is not installed, which makes the film" : "ffmpeg does not start");
    }
}

bool Film::startEncoder(std::int32_t scale) {
    const std::string size = std::to_string(256 * scale);
    const std::string rate = std::to_string(framesPerSecond);
    return ffmpeg.start("-f rawvideo -pixel_format bgr0 -video_size 256x256 -framerate " + rate +
                            " -i - -vf scale=" + size + ":" + size +
                            ":flags=neighbor -c:v libx264 -crf 16 -pix_fmt yuv420p -f mp4 " +
                            pictures.descriptorPath(),
                        {fileno(pictures.stream())});
}

void Film::frame(const Frame& frame) {
    showUntil(frame.micros);
    shownSince = frame.micros;
    shown.assign(frame.bytes.begin(), frame.bytes.end());
}

void Film::sound(const Block& block) {
    if (!soundtrack->add(block)) {
        fail(std::strerror(errno));
    }
}

void Film::showUntil(std::int64_t micros) {
    // A frame of 33333 microseconds is a third short of a thirtieth of a second; half a frame of slack
    // absorbs it.
    const std::int64_t wanted = (micros * framesPerSecond + microsPerSecond / 2) / microsPerSecond;
    for (; status == OutputState::open && shownFrames < wanted && !shown.empty(); ++shownFrames) {
        if (!ffmpeg.feed(shown)) {
            fail("ffmpeg did not take the film's pictures");
        }
    }
}

void Film::finish(std::int64_t micros) {
    showUntil(std::max(micros, shownSince + microsPerSecond / framesPerSecond));
    if (status != OutputState::open) {
        return;
    }
    if (!ffmpeg.wait()) {
        return fail("ffmpeg could not encode the film");
    }
    if (!soundtrack->finish(shownFrames * samplesPerSecond / framesPerSecond)) {
        return fail(std::strerror(errno));
    }
    if (!join()) {
        return fail("ffmpeg could not join the film's sound");
    }
    if (!film.takeName()) {
        return fail(std::strerror(errno));
    }
    status = OutputState::whole;
}

bool Film::join() {
    return ffmpeg.start("-i " + pictures.descriptorPath() + " -f s16le -ar 44100 -ac 1 -i " +
                            samples.descriptorPath() +
                            " -c:v copy -c:a aac -b:a 160k -movflags +faststart -f mp4 " +
                            film.descriptorPath(),
                        {fileno(pictures.stream()), fileno(samples.stream()), fileno(film.stream())}) &&
           ffmpeg.wait();
}

void Film::fail(const char* what) {
    say("cannot write " + path + ": " + what);
    status = OutputState::failed;
    film.becomeNameless();
}

} // namespace velm

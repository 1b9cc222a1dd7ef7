// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A film with sound, through ffmpeg: what a viewer sees and hears at each tick of virtual time. Pictures that
// are presented at the same moment, as in a fade-out, count as one, the last.
//
//     Film film("demo.mp4", {.rate = 30, .scale = 2, .gain = 1});
//     film.frame(frame);
//     film.finish(micros);
#pragma once

#include "capture/ffmpeg.h"
#include "capture/output.h"
#include "capture/soundtrack.h"
#include "capture/temporary_file.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velm {

struct FilmLook {
    std::int32_t rate;  ///< pictures per second
    std::int32_t scale; ///< enlargement, without smoothing
    double gain;        ///< what the samples are multiplied by
};

class Film : public Output {
public:
    Film(std::string finalPath, const FilmLook& look);

    void frame(const Frame& frame) override;
    void sound(const Block& block) override;

    /// Encodes what is left (the last picture for a tick at least), joins picture and sound, which then have
    /// the same length, and names the file.
    void finish(std::int64_t micros) override;

    [[nodiscard]] OutputState state() const override { return status; }
    [[nodiscard]] const std::string& name() const override { return path; }

private:
    bool startEncoder(std::int32_t scale);
    void showUntil(std::int64_t micros);
    bool join();
    void fail(const char* what);

    std::string path;
    TemporaryFile film;     ///< gets the name
    TemporaryFile pictures; ///< encoded, until the sound joins them
    TemporaryFile samples;  ///< bare
    std::int32_t framesPerSecond;
    Ffmpeg ffmpeg;
    std::optional<Soundtrack> soundtrack;
    std::vector<std::byte> shown; ///< the picture that is on the screen now
    std::int64_t shownSince = 0;  ///< virtual time
    std::int64_t shownFrames = 0; ///< film frames encoded so far
    OutputState status = OutputState::open;
};

} // namespace velm

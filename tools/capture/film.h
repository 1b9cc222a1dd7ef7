// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// A film with sound, through ffmpeg: what a viewer sees at each tick of virtual time. Pictures that are
// presented at the same moment, as in a fade-out, count as one, the last.
//
//     Film film("demo.mp4", 30, 2);
//     film.frame(words, micros);
//     film.finish(micros);
#pragma once

#include <cstdint>
#include <cstdio>
#include <span>
#include <string>
#include <vector>

namespace velm {

class Film {
public:
    Film(std::string finalPath, std::int32_t rate, std::int32_t scale);
    ~Film();
    Film(const Film&) = delete;
    Film& operator=(const Film&) = delete;

    /// 256 x 256 words presented at a moment of virtual time.
    void frame(std::span<const std::byte> words, std::int64_t micros);

    /// 16-bit mono at 44100 per second.
    void sound(std::span<const std::byte> samples);

    /// Encodes what is left (the last picture for a tick at least), joins picture and sound and names the
    /// file.
    void finish(std::int64_t micros);

private:
    void showUntil(std::int64_t micros);
    [[noreturn]] void fail(const char* what);
    void removeParts() const;

    std::string path;
    std::string picturePath; ///< the encoded pictures, until the sound joins them
    std::string soundPath;   ///< the bare samples
    std::string joinedPath;  ///< the film before it gets its name
    std::int32_t framesPerSecond;
    std::FILE* encoder = nullptr;
    std::FILE* soundFile = nullptr;
    std::vector<std::byte> shown; ///< the picture that is on the screen now
    std::int64_t shownSince = 0;  ///< virtual time
    std::int64_t shownFrames = 0; ///< film frames encoded so far
};

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/film.h"

#include "capture/output_file.h"

#include <algorithm>
#include <cstdlib>

namespace velm {

namespace {

constexpr std::int64_t microsPerSecond = 1000000;

/// A file for ffmpeg as a word for the shell, whatever its name holds.
std::string quoted(const std::string& word) {
    std::string text = "'file:";
    for (const char c : word) {
        text += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return text + "'";
}

/// Quiet, because the one line that a failure gets is ours; -xerror makes a failed write a failure.
constexpr const char* ffmpeg = "ffmpeg -nostdin -loglevel quiet -xerror -y ";

} // namespace

Film::Film(std::string finalPath, std::int32_t rate, std::int32_t scale)
    : path(std::move(finalPath)), picturePath(path + ".picture.part.mp4"), soundPath(path + ".sound.part"),
      joinedPath(path + ".part.mp4"), framesPerSecond(rate) {
    for (const std::string& part : {picturePath, soundPath, joinedPath}) {
        watchPart(part);
    }
    if (std::system("command -v ffmpeg >/dev/null 2>&1") != 0) {
        fail("ffmpeg is not installed, which makes the film");
    }
    const std::string size = std::to_string(256 * scale);
    const std::string command =
        std::string(ffmpeg) + "-f rawvideo -pixel_format bgr0 -video_size 256x256 -framerate " +
        std::to_string(rate) + " -i - -vf scale=" + size + ":" + size +
        ":flags=neighbor -c:v libx264 -crf 16 -pix_fmt yuv420p " + quoted(picturePath);
    encoder = popen(command.c_str(), "w");
    soundFile = std::fopen(soundPath.c_str(), "wb");
    if (encoder == nullptr || soundFile == nullptr) {
        fail("cannot write the film");
    }
}

Film::~Film() {
    if (encoder != nullptr) {
        pclose(encoder);
    }
    if (soundFile != nullptr) {
        std::fclose(soundFile);
    }
    removeParts();
}

void Film::frame(std::span<const std::byte> words, std::int64_t micros) {
    showUntil(micros);
    shownSince = micros;
    shown.assign(words.begin(), words.end());
}

void Film::sound(std::span<const std::byte> samples) {
    if (std::fwrite(samples.data(), 1, samples.size(), soundFile) != samples.size()) {
        fail("cannot write the film");
    }
}

void Film::showUntil(std::int64_t micros) {
    // A frame of 33333 microseconds is a third short of a thirtieth of a second; half a frame of slack
    // absorbs it.
    const std::int64_t wanted = (micros * framesPerSecond + microsPerSecond / 2) / microsPerSecond;
    for (; shownFrames < wanted && !shown.empty(); ++shownFrames) {
        if (std::fwrite(shown.data(), 1, shown.size(), encoder) != shown.size()) {
            fail("ffmpeg did not take the film's pictures");
        }
    }
}

void Film::finish(std::int64_t micros) {
    showUntil(std::max(micros, shownSince + microsPerSecond / framesPerSecond));
    const int encoded = pclose(encoder);
    encoder = nullptr;
    const int closed = std::fclose(soundFile);
    soundFile = nullptr;
    if (encoded != 0 || closed != 0) {
        fail("ffmpeg could not encode the film");
    }
    const std::string join = std::string(ffmpeg) + "-i " + quoted(picturePath) +
                             " -f s16le -ar 44100 -ac 1 -i " + quoted(soundPath) +
                             " -c:v copy -c:a aac -b:a 160k -movflags +faststart " + quoted(joinedPath);
    if (std::system(join.c_str()) != 0) {
        fail("ffmpeg could not join the film's sound");
    }
    if (std::rename(joinedPath.c_str(), path.c_str()) != 0) {
        fail("the film cannot get its name");
    }
    removeParts();
}

void Film::fail(const char* what) {
    if (encoder != nullptr) {
        pclose(encoder); // or it might make its file after we have removed it
    }
    giveUp(path + ": " + what);
}

void Film::removeParts() const {
    for (const std::string& part : {picturePath, soundPath, joinedPath}) {
        std::remove(part.c_str());
    }
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/recorder.h"

#include "capture/film.h"
#include "capture/wav.h"

#include <chrono>
#include <filesystem>
#include <unistd.h>
#include <zlib.h>

namespace velm {

namespace {

void openIf(std::optional<OutputFile>& file, const std::string& path) {
    if (!path.empty()) {
        file.emplace(path);
    }
}

double now() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

std::span<const std::byte> bytesOf(const IMG& img) {
    return std::as_bytes(
        std::span(img.pixels, static_cast<std::size_t>(img.width) * static_cast<std::size_t>(img.height)));
}

void writeChecksum(OutputFile& file, std::uint32_t number, std::span<const std::byte> bytes) {
    const auto* const start = reinterpret_cast<const Bytef*>(bytes.data());
    const uLong sum = crc32(0, start, static_cast<uInt>(bytes.size()));
    char line[32];
    const int length = std::snprintf(line, sizeof line, "%u %08lx\n", number, sum);
    file.write(std::as_bytes(std::span(line, static_cast<std::size_t>(length))));
}

void writePicture(const std::string& folder, std::uint32_t number, const IMG& img) {
    char name[32];
    std::snprintf(name, sizeof name, "/frame-%05u.ppm", number);
    const std::string part = folder + name + ".part";
    if (IMG_writePPM(&img, part.c_str()) == 0 || std::rename(part.c_str(), (folder + name).c_str()) != 0) {
        std::remove(part.c_str());
        giveUp("cannot write " + folder + name);
    }
}

void makeFolder(const std::string& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!std::filesystem::is_directory(folder, error)) {
        giveUp("cannot make the folder " + folder);
    }
}

} // namespace

Recorder::Recorder(const CaptureOptions& captureOptions) : options(captureOptions), startSeconds(now()) {
    openIf(raw, options.raw);
    openIf(crc, options.crc);
    openIf(audio, options.audio);
    if (audio) {
        audio->write(wavHeader(0));
    }
    if (!options.film.empty()) {
        film.emplace(options.film, options.rate, options.scale);
    }
    if (!options.ppmFolder.empty()) {
        makeFolder(options.ppmFolder);
    }
}

Recorder::~Recorder() = default;

void Recorder::frame(const IMG& img) {
    ++frames;
    const std::span<const std::byte> bytes = bytesOf(img);
    if (raw) {
        raw->write(bytes);
    }
    if (crc) {
        writeChecksum(*crc, frames, bytes);
    }
    if (!options.ppmFolder.empty()) {
        writePicture(options.ppmFolder, frames, img);
    }
    if (film) {
        film->frame(bytes, headless.micros);
    }
    progress();
}

void Recorder::sound(std::span<const std::int16_t> samples) {
    const std::span<const std::byte> bytes = std::as_bytes(samples);
    if (audio) {
        audio->write(bytes);
        audioBytes += static_cast<std::uint32_t>(bytes.size());
    }
    if (film) {
        film->sound(bytes);
    }
}

void Recorder::finish() {
    endProgressLine();
    if (audio) {
        audio->rewriteStart(wavHeader(audioBytes));
    }
    for (std::optional<OutputFile>* const file : {&raw, &crc, &audio}) {
        if (*file) {
            (*file)->finish();
        }
    }
    if (film) {
        film->finish(headless.micros);
    }
}

void Recorder::endProgressLine() {
    if (lineIsOpen) {
        std::fputc('\n', stderr);
        lineIsOpen = false;
    }
}

void Recorder::progress() {
    constexpr std::uint32_t framesBetweenLines = 64;
    if (options.quiet || isatty(STDERR_FILENO) == 0 ||
        (frames % framesBetweenLines != 0 && frames != options.frames)) {
        return;
    }
    const double rate = frames / std::max(now() - startSeconds, 1e-6);
    constexpr const char* clearToEnd = "\x1b[K";
    std::fprintf(stderr, "\r%u of %u frames, %.0f per second, %.0f s left%s", frames, options.frames, rate,
                 (options.frames - frames) / rate, clearToEnd);
    lineIsOpen = true;
}

} // namespace velm

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

std::unique_ptr<OutputFile> openIf(const std::string& path) {
    return path.empty() ? nullptr : std::make_unique<OutputFile>(path);
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
    if (IMG_writePPM(&img, (folder + name).c_str()) == 0) {
        std::fprintf(stderr, "velm4030-capture: cannot write %s%s\n", folder.c_str(), name);
        std::filesystem::remove(folder + name);
        std::_Exit(1);
    }
}

} // namespace

Recorder::Recorder(const CaptureOptions& captureOptions)
    : options(captureOptions), raw(openIf(options.raw)), crc(openIf(options.crc)),
      audio(openIf(options.audio)),
      film(options.film.empty() ? nullptr
                                : std::make_unique<Film>(options.film, options.rate, options.scale)),
      startSeconds(now()) {
    if (audio) {
        audio->write(wavHeader(0));
    }
    if (!options.ppmFolder.empty()) {
        std::error_code ignored;
        std::filesystem::create_directories(options.ppmFolder, ignored);
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
    if (audio) {
        audio->rewriteStart(wavHeader(audioBytes));
    }
    for (const auto& file : {raw.get(), crc.get(), audio.get()}) {
        if (file != nullptr) {
            file->finish();
        }
    }
    if (film) {
        film->finish(headless.micros);
    }
}

void Recorder::progress() const {
    constexpr std::uint32_t framesBetweenLines = 64;
    if (options.quiet || isatty(STDERR_FILENO) == 0 ||
        (frames % framesBetweenLines != 0 && frames != options.frames)) {
        return;
    }
    const double rate = frames / std::max(now() - startSeconds, 1e-6);
    std::fprintf(stderr, "\r%u of %u frames, %.0f per second, %.0f s left ", frames, options.frames, rate,
                 (options.frames - frames) / rate);
    if (frames == options.frames) {
        std::fputc('\n', stderr);
    }
}

} // namespace velm

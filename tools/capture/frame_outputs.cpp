// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/frame_outputs.h"

#include "capture/console.h"
#include "capture/crc/crc.h"
#include "capture/temporary_file.h"
#include "image/img.h"

#include <filesystem>

namespace velm {

void Checksums::frame(const Frame& frame) {
    const std::uint32_t sum = crcOf(frame.bytes);
    char line[32];
    const int length = std::snprintf(line, sizeof line, "%u %08x\n", frame.number, sum);
    file.write(std::as_bytes(std::span(line, static_cast<std::size_t>(length))));
}

NumberedPictures::NumberedPictures(std::string path) : folder(std::move(path)) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!std::filesystem::is_directory(folder, error)) {
        say("cannot make the folder " + folder);
        status = OutputState::failed;
    }
}

bool NumberedPictures::mayWrite(const std::string& name) {
    return name.starts_with("frame-") && name.ends_with(".ppm");
}

void NumberedPictures::frame(const Frame& frame) {
    char picture[32];
    std::snprintf(picture, sizeof picture, "frame-%05u.ppm", frame.number);
    const std::string path = folder + "/" + picture;
    TemporaryFile file(path);
    if (file.stream() == nullptr || IMG_writePPM(&frame.img, file.descriptorPath().c_str()) == 0 ||
        !file.takeName()) {
        say("cannot write " + path);
        status = OutputState::failed;
    }
}

} // namespace velm

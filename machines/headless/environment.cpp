// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "headless/environment.h"

#include "foundation/byte_order.h"
#include "headless/headless.h"
#include "image/img.h"
#include "image/rgb888.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>

namespace velm {

namespace {

std::string variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

[[noreturn]] void giveUp(const std::string& path) {
    std::fprintf(stderr, "cannot write %s\n", path.c_str());
    std::exit(EXIT_FAILURE);
}

/// Writes whole blocks or ends the program.
class Output {
public:
    explicit Output(std::string name) : path(std::move(name)), file(std::fopen(path.c_str(), "wb")) {
        if (file == nullptr) {
            giveUp(path);
        }
    }
    void write(const void* bytes, std::size_t count) const {
        if (std::fwrite(bytes, 1, count, file) != count || std::fflush(file) != 0) {
            giveUp(path);
        }
    }

private:
    std::string path;
    std::FILE* file; ///< the process's end closes it
};

void writeFrame(const Output& output, const IMG& frame) {
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(frame.width * frame.height) * 3);
    for (std::size_t i = 0; i < bytes.size() / 3; ++i) {
        RGB888_toBytes(frame.pixels[i], &bytes[i * 3]);
    }
    output.write(bytes.data(), bytes.size());
}

/// Calls take(word) for every word of a text, its colons being spaces.
template <typename Take>
void forEachWord(const std::string& text, Take take) {
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        for (char& letter : word) {
            letter = letter == ':' ? ' ' : letter;
        }
        std::istringstream fields(word);
        take(fields);
    }
}

void takeKey(std::istringstream& fields) {
    HeadlessKey key{};
    char first = 0;
    fields >> key.frame >> first;
    if (first == '=' && fields >> key.keycode) {
        first = 0;
    }
    key.text = first;
    headless.keys.push_back(key);
}

void takePointer(std::istringstream& fields) {
    HeadlessPointer pointer{};
    fields >> pointer.frame >> pointer.x >> pointer.y >> pointer.buttons;
    headless.pointers.push_back(pointer);
}

} // namespace

void takeEnvironment() {
    if (headless.onFrame || headless.onSound || headless.onLimit) {
        return;
    }
    if (const std::string frames = variable("VELM_FRAMES"); !frames.empty()) {
        headless.frameLimit = static_cast<std::uint32_t>(std::atoi(frames.c_str()));
        headless.onLimit = [] { std::exit(EXIT_SUCCESS); };
    }
    if (const std::string path = variable("VELM_VIDEO"); !path.empty()) {
        headless.onFrame = [output = Output(path)](const IMG& frame) { writeFrame(output, frame); };
    }
    if (const std::string path = variable("VELM_AUDIO"); !path.empty()) {
        headless.onSound = [output = Output(path)](std::span<const std::int16_t> block) {
            std::vector<std::int16_t> samples(block.size());
            std::transform(block.begin(), block.end(), samples.begin(),
                           [](std::int16_t sample) { return lowByteFirst(sample); });
            output.write(samples.data(), block.size_bytes());
        };
    }
    forEachWord(variable("VELM_KEYS"), takeKey);
    forEachWord(variable("VELM_POINTER"), takePointer);
}

} // namespace velm

// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "capture/options.h"

#include "capture/frame_outputs.h"
#include "capture/paths.h"
#include "common/arguments.h"
#include "platform/dsp.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>

namespace velm {

namespace {

constexpr std::int32_t noKeycode = 1; ///< any keycode that stands for no arrow

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (;;) {
        const std::size_t end = text.find(separator, begin);
        parts.push_back(text.substr(begin, end - begin));
        if (end == std::string::npos) {
            return parts;
        }
        begin = end + 1;
    }
}

std::optional<HeadlessKey> keyOf(const std::string& name) {
    const struct {
        const char* name;
        HeadlessKey key;
    } named[] = {{"esc", {0, 27, noKeycode}},
                 {"space", {0, ' ', noKeycode}},
                 {"up", {0, 0, 98}},
                 {"down", {0, 0, 104}}};
    for (const auto& entry : named) {
        if (name == entry.name) {
            return entry.key;
        }
    }
    return name.size() == 1 ? std::optional(HeadlessKey{0, name[0], noKeycode}) : std::nullopt;
}

/// "FRAME:KEY,..."; an error message for CLI11, or "". A key has one character at least, so it may be the
/// comma itself.
std::string parseKeys(const std::string& text, std::vector<HeadlessKey>& keys) {
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t colon = text.find(':', begin);
        const std::size_t end = colon == std::string::npos ? colon : text.find(',', colon + 2);
        const std::string entry = text.substr(begin, end - begin);
        const std::size_t split = entry.find(':');
        const auto frame = numberOf<std::uint32_t>(entry.substr(0, split));
        const auto key = split == std::string::npos ? std::nullopt : keyOf(entry.substr(split + 1));
        if (!frame || !key) {
            return "not FRAME:KEY: '" + entry + "'";
        }
        keys.push_back({*frame, key->text, key->keycode});
        begin = end == std::string::npos ? text.size() + 1 : end + 1;
    }
    std::stable_sort(keys.begin(), keys.end(),
                     [](const HeadlessKey& a, const HeadlessKey& b) { return a.frame < b.frame; });
    return "";
}

/// "FRAME:X:Y:BUTTONS,..."; an error message for CLI11, or "".
std::string parsePointers(const std::string& text, std::vector<HeadlessPointer>& pointers) {
    for (const std::string& entry : split(text, ',')) {
        const std::vector<std::string> fields = split(entry, ':');
        const auto frame = numberOf<std::uint32_t>(fields[0]);
        std::optional<std::int32_t> numbers[3];
        for (std::size_t i = 1; i < fields.size() && i <= 3; ++i) {
            numbers[i - 1] = numberOf<std::int32_t>(fields[i]);
        }
        if (fields.size() != 4 || !frame || !numbers[0] || !numbers[1] || !numbers[2]) {
            return "not FRAME:X:Y:BUTTONS: '" + entry + "'";
        }
        pointers.push_back({*frame, *numbers[0], *numbers[1], *numbers[2]});
    }
    std::stable_sort(pointers.begin(), pointers.end(),
                     [](const HeadlessPointer& a, const HeadlessPointer& b) { return a.frame < b.frame; });
    return "";
}

/// Refuses two outputs on one file, whatever they call it, and one that would be a picture of the folder.
void requireApart(const CaptureOptions& options) {
    const std::string folder = options.ppmFolder == "-" ? "./-" : options.ppmFolder;
    std::map<std::string, std::string> known; // by identity, as it was called
    for (const std::string& path : {options.raw, options.crc, options.audio, options.film, folder}) {
        if (path.empty()) {
            continue;
        }
        const auto [first, isNew] = known.try_emplace(identityOf(path), path);
        if (!isNew) {
            throw CLI::ValidationError("two outputs cannot share '" + path + "'" +
                                       (path == first->second ? "" : ", which is '" + first->second + "'"));
        }
        const std::filesystem::path target = linkTarget(path);
        const std::string parent = target.has_parent_path() ? target.parent_path().string() : ".";
        if (!folder.empty() && NumberedPictures::mayWrite(target.filename().string()) &&
            identityOf(parent) == identityOf(folder)) {
            throw CLI::ValidationError(std::string("'")
                                           .append(path)
                                           .append("' is a picture of the folder '")
                                           .append(folder)
                                           .append("'"));
        }
    }
}

/// Refuses what cannot be written to the place that it is to go to.
void requirePlaces(const CaptureOptions& options) {
    if (options.audio == "-" || options.film == "-") {
        throw CLI::ValidationError("sound and films need a file, not standard output");
    }
    if (!canRewind(options.audio)) {
        throw CLI::ValidationError("sound needs a file, not the pipe or terminal '" + options.audio + "'");
    }
    if (!isOrdinary(options.film)) {
        throw CLI::ValidationError("a film needs an ordinary file, not '" + options.film + "'");
    }
}

/// The options' own words, which are understood as they come.
struct Words {
    std::string scene, keys, pointers;
};

void addShow(CLI::App& app, CaptureOptions& options, Words& words) {
    takeFrames(*app.add_option("--frames", options.frames, "how many frames, the logo at the start included")
                    ->required());
    CLI::Option* const one =
        app.add_option("--scene", words.scene,
                       "plays this scene, again and again, instead of the schedule: " + sceneNames());
    takeScene(*one, options.scene);
    app.add_flag("--tour", options.tour, "plays all scenes, one after the other, instead of the schedule")
        ->excludes(one);
    takeRate(*app.add_option("--rate", options.rate, "frames per second at the start, 30 or 60"));
    app.add_option("--keys", words.keys,
                   "FRAME:KEY,... presses a key (a character, esc, space, up, down) after a frame")
        ->check([&options](const std::string& text) { return parseKeys(text, options.keys); });
    app.add_option("--pointer", words.pointers, "FRAME:X:Y:BUTTONS,... moves the pointer after a frame")
        ->check([&options](const std::string& text) { return parsePointers(text, options.pointers); });
}

void addOutputs(CLI::App& app, CaptureOptions& options) {
    app.add_option("--raw", options.raw,
                   "every frame as 256 x 256 words 0x00RRGGBB, low byte first; - for standard output");
    app.add_option("--ppm", options.ppmFolder, "every frame as a numbered P6 file in this folder");
    app.add_option("--crc", options.crc,
                   "a line a frame, number and CRC-32 of those bytes; - for standard output");
    app.add_option("--audio", options.audio, "what the sound device is handed, as a WAV file");
    app.add_option("--block", options.block,
                   "bytes of the sound driver's block (what a frame lasts at --rate)")
        ->check(CLI::Range(2, 1 << 20));
    app.add_option("--mp4", options.film, "a film with sound, made by ffmpeg");
    app.add_option("--scale", options.scale, "enlargement of the film, without smoothing")
        ->check(CLI::Range(1, 16));
    takeGain(*app.add_option(
        "--gain", options.gain,
        "decibels that the sound is raised by; 12 for a film, none for a WAV file unless given"));
}

} // namespace

CaptureOptions parseOptions(int argc, char** argv) {
    CaptureOptions options;
    Words words;
    CLI::App app(std::string("The VELM4030 demo as files: frames, checksums, sound and films, as fast as the "
                             "machine goes.\n") +
                 flashingText);
    app.set_version_flag("--version", "velm4030-capture " VELM_VERSION);
    addShow(app, options, words);
    addOutputs(app, options);
    app.add_flag("--quiet", options.quiet, "no progress line");
    parseOrLeave(app, "velm4030-capture", argc, argv, [&options] {
        requirePlaces(options);
        requireApart(options);
    });
    // A driver names its block once, whatever the keys do to the rate; a film's sound has to stay with its
    // picture.
    if (options.block == 0 && options.film.empty()) {
        options.block = DSP_blockBytes(options.rate);
    }
    return options;
}

} // namespace velm

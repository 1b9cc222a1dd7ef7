// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// velm4030-live: plays source files, and plays them anew as soon as one is saved.
#include "common/arguments.h"
#include "demo/instruments.h"
#include "demo/scenes.h"
#include "desktop/desktop.h"
#include "kit/kit.h"
#include "platform/channel.h"
#include "platform/clock.h"
#include "platform/gain.h"
#include "platform/program.h"
#include "workshop/sources.h"
#include "workshop/stage.h"

#include <csignal>
#include <cstdio>
#include <unistd.h>

using namespace velm;

namespace {

constexpr const char* program = "velm4030-live";

struct LiveOptions {
    std::vector<std::string> sources;
    std::string prefix = prefixOfProgram().string();
    bool isSilent = false;
};

LiveOptions parseOptions(int argc, char** argv) {
    constexpr int mostScale = 16;
    LiveOptions options;
    CLI::App app("Plays a source file, and plays it anew as soon as it is saved.");
    app.footer(
        "A file that does not compile changes nothing; the first error stands in the window's last line,\n"
        "all of them on the terminal. CXX and CXXFLAGS name another compiler and more flags. Escape quits.");
    app.set_version_flag("--version", std::string(program) + " " VELM_VERSION);
    app.add_option("FILE", options.sources, "the sources of one program on kit/kit.h")
        ->required()
        ->check(CLI::ExistingFile);
    app.add_option("--prefix", options.prefix, "where libvelm is installed (where this program is)")
        ->check(CLI::ExistingDirectory);
    app.add_option("--scale", desktop.scale,
                   "size of the window, in multiples of 256 pixels (what suits the screen)")
        ->check(CLI::Range(1, mostScale));
    app.add_flag("--silent", options.isSilent, "no sound, neither the tune nor the program's");
    parseOrLeave(app, program, argc, argv);
    return options;
}

/// The window's last line: a text that moves to and fro where it is too long.
void writeLine(KIT& kit, const std::string& text) {
    constexpr std::int32_t cell = 8;
    constexpr std::int32_t top = 244;
    constexpr std::int32_t margin = 4;
    constexpr std::uint32_t ground = 0x300010;
    if (text.empty()) {
        return;
    }
    IMG_fillRect(kit.screen, 0, top - margin / 2, Channel::size, Channel::size - top + margin, ground);
    const std::int32_t hidden = static_cast<std::int32_t>(text.size()) * cell + 2 * margin - Channel::size;
    constexpr std::int32_t rest = 30;
    const std::int32_t period = 2 * (std::max(hidden, 0) + rest);
    constexpr std::int32_t framesPerStep = 2;
    const std::int32_t place = kit.frame / framesPerStep % period;
    const std::int32_t moved = std::clamp(std::min(place, period - place) - rest / 2, 0, std::max(hidden, 0));
    LFONT_place(kit.smallPen, margin - moved, top, 1);
    LFONT_drawLine(kit.smallPen, text.c_str());
}

/// Tells the terminal and the line of news.
void tell(std::string& line, const std::string& news) {
    line = news;
    std::fprintf(stderr, "%s\n", news.c_str());
}

volatile std::sig_atomic_t isInterrupted = 0;

void interrupt(int) {
    isInterrupted = 1;
}

/// The window keeps up with programs of any rate, and the tune its own pace.
void setRate(KIT& kit, MUSIC* tune) {
    const std::int32_t times = Channel::mostRate / kit.rate;
    KIT_setRate(&kit, Channel::mostRate);
    if (tune != nullptr) {
        tune->period *= times;
    }
}

void play(const LiveOptions& options) {
    const Owned<KIT_delete> kit(KIT_new());
    Owned<MUSIC_delete> tune(options.isSilent ? nullptr : VELM4030_buildMusic());
    if (kit == nullptr) {
        std::exit(EXIT_FAILURE);
    }
    kit->music = tune;
    setRate(*kit, tune);
    Workshop workshop(options.sources, options.prefix);
    Stage stage;
    std::string line = "compiling...";
    while (isInterrupted == 0 && KIT_nextFrame(kit)) {
        if (workshop.step()) {
            std::fputs(workshop.said().c_str(), stderr);
            if (workshop.program().empty()) {
                line = firstError(workshop.said());
            } else {
                stage.bringOn(workshop.program(), *kit);
            }
        }
        if (const std::string news = stage.draw(*kit); !news.empty()) {
            tell(line, news);
        } else if (stage.hasChanged()) {
            constexpr double second = 1000000;
            line.clear();
            std::printf("playing, %.2f seconds after it was saved\n",
                        static_cast<double>(CLOCK_now() - workshop.savedAt()) / second);
            std::fflush(stdout);
        }
        writeLine(*kit, line);
    }
    if (tune != nullptr && tune->pattern != nullptr) {
        SAMPLE_delete(&tune->pattern); // MUSIC_delete leaves it
    }
}

} // namespace

int main(int argc, char** argv) {
    desktop.gain = GAIN_usual;
    programNames.name = program;
    const LiveOptions options = parseOptions(argc, argv);
    if (options.isSilent) {
        desktop.sound = noSound;
    }
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        std::signal(number, interrupt);
    }
    std::signal(SIGPIPE, SIG_IGN);
    play(options);
}

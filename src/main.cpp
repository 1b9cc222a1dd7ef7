// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// velm4030: the demo. It takes no arguments but those that ask about it.
#include "demo/velm4030.h"

#include <cstdio>
#include <string>
#include <string_view>

namespace {

constexpr const char* help =
    "Usage: velm4030\n"
    "\n"
    "A demo: moving pictures and their music, computed while you watch, in a window of 256 x 256 pixels.\n"
    "It plays one scene of 100 seconds, again and again, and now and then one of two interludes.\n"
    "\n"
    "Warning: the first interlude flashes, up to five times a second, and nine times after key 6.\n"
    "\n"
    "Options:\n"
    "  -h,--help  this text\n"
    "  --version  the version\n"
    "\n"
    "Keys:\n"
    "Escape  fades out and quits\n"
    "Space   next part\n"
    "p       pause\n"
    "0       music on or off\n"
    "5 6     30 or 60 frames per second\n"
    "The man page velm4030(1) has the others; velm4030-play shows all scenes, larger.\n";

/// What the process returns, after the answer.
int answer(std::string_view question) {
    constexpr int statusWrongArgument = 2;
    if (question == "--help" || question == "-h") {
        std::fputs(help, stdout);
    } else if (question == "--version") {
        std::puts("velm4030 " VELM_VERSION);
    } else {
        std::fprintf(stderr, "velm4030: no such argument: '%s'; --help tells more\n",
                     std::string(question).c_str());
        return statusWrongArgument;
    }
    return std::fflush(stdout) == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 1) {
        return answer(argv[1]);
    }
    velm::VELM4030_main();
}

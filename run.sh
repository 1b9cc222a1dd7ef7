#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# ./run.sh: installs what is missing, builds the demo and plays it. Without a display it plays in a private Xvfb;
# without /dev/dsp it plays through a sound server, or silent.
# ./run.sh tour [ARGUMENT...]: the same for the player, velm4030-play, which shows all scenes and finds the sound itself.
# ./run.sh web [PORT]: builds the page and serves it on this machine, at the port 4030 unless another one is named.
# ./run.sh live FILE.cpp: plays a source file, and plays it anew whenever it is saved.
# ./run.sh ARGUMENT...: the player with these arguments ("--help" names them).
set -euo pipefail
CDPATH="" cd -- "$(dirname -- "$0")"
. packaging/packages.sh

serve_page() {
    packaging/need.sh "${web_packages[@]}"
    cmake --preset web -DVELM_BUILD_TESTS=OFF >/dev/null
    cmake --build --preset web -- --quiet
    echo "The page: http://127.0.0.1:$1/velm4030.html (Ctrl-C ends it)"
    exec python3 -m http.server --bind 127.0.0.1 --directory build/web "$1"
}

# velm4030-live beside the library that it compiles against, in the build folder.
play_live() {
    packaging/need.sh "${player_packages[@]}"
    cmake --preset release -DVELM_BUILD_TESTS=OFF -DVELM_BUILD_TOOLS=ON >/dev/null
    cmake --build --preset release --target velm_dev -- --quiet
    cmake --install build/release --component dev --prefix build/release/kit >/dev/null
    exec build/release/kit/bin/velm4030-live "$@"
}

case ${1:-} in
web) serve_page "${2:-4030}" ;;
live) shift && play_live "$@" ;;
esac
if [ $# -eq 0 ]; then
    program=velm4030
    tools=OFF
    packages=("${build_packages[@]}")
    echo 'The demo, by its own schedule. ./run.sh tour shows all sixteen scenes, larger.'
else
    if [ "$1" = tour ]; then
        shift
    fi
    program=velm4030-play
    tools=ON
    packages=("${player_packages[@]}")
fi
packaging/need.sh "${packages[@]}"
cmake --preset release -DVELM_BUILD_TESTS=OFF "-DVELM_BUILD_TOOLS=$tools" >/dev/null
cmake --build --preset release --target "$program" -- --quiet

# Asks the sound server where its client is installed; else its socket must do for an answer.
server_answers() {
    if command -v pactl >/dev/null; then
        timeout 5 pactl info >/dev/null 2>&1
    else
        [ -n "${PULSE_SERVER:-}" ] || [ -S "${XDG_RUNTIME_DIR:-/nowhere}/pulse/native" ]
    fi
}

# The library that hands /dev/dsp to the sound server; nothing where it cannot be installed.
pulse_library() {
    packaging/need.sh libpulsedsp >&2 || return 1
    dpkg -L libpulsedsp | grep -m 1 '/libpulsedsp\.so$'
}

if [ "$program" = velm4030 ] && [ ! -e /dev/dsp ]; then
    if server_answers && library=$(pulse_library) && [ -n "$library" ]; then
        export LD_PRELOAD="$library${LD_PRELOAD:+:$LD_PRELOAD}"
    else
        echo 'No /dev/dsp and no sound server: playing silent.'
    fi
fi

if [ -n "${DISPLAY:-}" ]; then
    exec "build/release/$program" "$@"
fi
echo 'No display: playing in a private Xvfb.'
env -u LD_PRELOAD packaging/need.sh xvfb
exec packaging/private_display.sh "build/release/$program" "$@"

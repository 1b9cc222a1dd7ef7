#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# ./run.sh: installs what is missing, builds the demo and plays it; usage() tells the rest. What it says stands on standard
# error; standard output belongs to what it starts.
set -euo pipefail
CDPATH="" cd -- "$(dirname -- "$0")"
. packaging/packages.sh

usage() {
    cat <<'END'
./run.sh                 the demo, by its own schedule: one scene of 100 seconds, again and again, and now and then
                         one of two interludes
./run.sh tour            all scenes, larger and with today's sound, for about eight minutes, then again
./run.sh SCENE...        these scenes; --list names them
./run.sh film [SCENE]    writes a film to the folder build: of the demo, 100 seconds, of one scene, 30 seconds, or,
                         with the word tour, of all scenes, which takes many minutes
./run.sh live FILE.cpp   plays a program of your own, and plays it anew whenever you save it
./run.sh web [PORT]      the demo as a page, on this machine alone, at port 4030 unless another is given
./run.sh --OPTION...     the player with these options; "./run.sh tour --help" names them

Each installs the Debian packages that are missing, which may ask for your password, and builds what it starts, which
takes some minutes the first time. Escape quits, Space goes to the next scene, h in the player shows all keys.

Warning: the scene interlude-a flashes, up to five times a second, and nine times after key 6.
END
}

say() {
    printf '%s\n' "$@" >&2
}

# build PRESET TARGET [quietly]: with ninja's own counter on a terminal, and with a line a quarter elsewhere.
build() {
    cmake --preset "$1" >/dev/null
    if [ "${3:-}" = quietly ]; then
        cmake --build --preset "$1" --target "$2" -- --quiet >&2
        return
    fi
    say "Building $2"
    if [ -t 2 ]; then
        cmake --build --preset "$1" --target "$2" >&2
    else
        cmake --build --preset "$1" --target "$2" | awk -F '[][/]' '
            !/^\[[0-9]+\/[0-9]+\] / { if (!/^ninja: no work/) print; next }
            int(4 * $2 / $3) > said { said = int(4 * $2 / $3); print "[" $2 "/" $3 "]"; fflush() }' >&2
    fi
}

serve_page() { # PORT
    packaging/need.sh web_packages
    build web velm4030.html
    say "The page: http://127.0.0.1:$1/velm4030.html (Ctrl-C ends it)"
    exec python3 -m http.server --bind 127.0.0.1 --directory build/web "$1"
}

make_film() { # [SCENE]
    local name=${1:-demo} what
    case $name in
    demo) what=(--frames 3033) ;;
    tour) what=(--frames 14300 --tour) ;;
    *) what=(--frames 900 --scene "$name") ;;
    esac
    packaging/need.sh player_packages ffmpeg
    build release velm4030-capture
    build/release/velm4030-capture "${what[@]}" --scale 3 --mp4 "build/$name.mp4"
    say "The film: build/$name.mp4"
}

# velm4030-live beside the library that it compiles against, in the build folder.
play_live() { # FILE...
    packaging/need.sh player_packages
    build release velm_dev
    cmake --install build/release --component dev --prefix build/release/kit >/dev/null
    exec build/release/kit/bin/velm4030-live "$@"
}

# True for arguments that the player answers in a few lines.
is_question() {
    [[ " $* " =~ \ (-h|--help|--list|--version)\  ]]
}

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

find_sound() {
    if [ ! -e /dev/dsp ]; then
        if server_answers && library=$(pulse_library) && [ -n "$library" ]; then
            export LD_PRELOAD="$library${LD_PRELOAD:+:$LD_PRELOAD}"
        else
            say 'No /dev/dsp and no sound server: playing silent.'
        fi
    fi
}

# play PROGRAM ARGUMENT...: on the display, or where nobody sees it.
play() {
    if [ -n "${DISPLAY:-}" ] || { [ "$1" = velm4030-play ] && [ -n "${WAYLAND_DISPLAY:-}" ]; }; then
        exec "build/release/$1" "${@:2}"
    fi
    say 'No display: it plays in a private Xvfb, where nobody sees it; Ctrl-C ends it. To watch, start it on a desktop or' \
        'through "ssh -X", or have ./run.sh web serve the page, or ./run.sh film write a film.'
    env -u LD_PRELOAD packaging/need.sh xvfb
    exec packaging/private_display.sh "build/release/$1" "${@:2}"
}

case ${1:-} in
'')
    packaging/need.sh build_packages
    build release velm4030
    find_sound
    say 'The demo: one scene of 100 seconds, again and again, and now and then one of two interludes. The first of these' \
        'flashes. Escape quits, Space goes to the next part. ./run.sh tour shows all scenes, larger.'
    play velm4030
    ;;
-h | --help) usage ;;
web) serve_page "${2:-4030}" ;;
film) make_film "${@:2}" ;;
live) play_live "${@:2}" ;;
*)
    if [ "$1" = tour ]; then
        shift
    fi
    packaging/need.sh player_packages
    if is_question "$@"; then
        build release velm4030-play "$([ -x build/release/velm4030-play ] && echo quietly)"
        exec build/release/velm4030-play "$@"
    fi
    build release velm4030-play
    if [ $# -eq 0 ]; then
        say 'The tour: all scenes in about eight minutes, then again. One of them, interlude-a, flashes.'
    fi
    say 'Escape quits, Space goes to the next scene, F11 fills the screen, h shows all keys.'
    play velm4030-play "$@"
    ;;
esac

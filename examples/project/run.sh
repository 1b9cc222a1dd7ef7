#!/usr/bin/env bash
# ./run.sh                  builds @NAME@ and plays it
# ./run.sh live             plays it anew whenever a source is saved
# ./run.sh test             runs its test
# ./run.sh film [SECONDS]   makes @NAME@.mp4, of ten seconds unless told otherwise (needs ffmpeg)
# ./run.sh page             makes build/page/@NAME@.html, which any browser plays (needs emscripten)
# VELM_PREFIX=FOLDER names where libvelm is installed, if the compiler does not know the place.
set -euo pipefail
cd "$(dirname "$0")"
export PATH="${VELM_PREFIX:+$VELM_PREFIX/bin:}$PATH"

# build [FOLDER CMAKE_ARGUMENT...]
build() {
    [ $# -gt 0 ] || set -- build "-DCMAKE_PREFIX_PATH=${VELM_PREFIX:-}"
    { cmake -S . -B "$@" && cmake --build "$1" -j "$(nproc)"; } >build.log || {
        cat build.log >&2
        exit 1
    }
}

# Ends unless the program is there, which comes with the Debian package.
need() { # PROGRAM PACKAGE
    command -v "$1" >/dev/null || { echo "This needs $2; as root: apt-get install $2" >&2 && exit 1; }
}

film() {
    local work
    need ffmpeg ffmpeg
    build
    work=$(mktemp -d)
    # shellcheck disable=SC2064
    trap "rm -r '$work'" EXIT
    VELM_FRAMES=$((30 * $1)) VELM_VIDEO=$work/video VELM_AUDIO=$work/audio "build/@NAME@-film"
    ffmpeg -v error -y -f rawvideo -pix_fmt rgb24 -s 256x256 -r 30 -i "$work/video" -f s16le -ar 44100 -ac 1 \
        -i "$work/audio" -vf scale=768:768:flags=neighbor -pix_fmt yuv420p "@NAME@.mp4"
    echo "@NAME@.mp4 is made."
}

page() {
    local library
    library=$(command -v velm4030-new) || { echo 'Where is libvelm? VELM_PREFIX=FOLDER tells.' >&2 && exit 1; }
    library=$(dirname "$(dirname "$(realpath "$library")")")
    need em++ emscripten
    # Debian's emscripten has parts of its own in the system's folder for node.
    export NODE_PATH=/usr/share/nodejs${NODE_PATH:+:$NODE_PATH}
    build build/page --toolchain "$library/share/velm4030/web/emscripten.cmake"
    echo "build/page/@NAME@.html is made."
}

case ${1:-play} in
play) build && exec "build/@NAME@" ;;
live) exec velm4030-live src/main.cpp src/rings.cpp ;;
test) build && ctest --test-dir build --output-on-failure ;;
film) film "${2:-10}" ;;
page) page ;;
*) sed -n '2,/^set/{/^# /s/^# //p}' "$0" >&2 && exit 2 ;;
esac

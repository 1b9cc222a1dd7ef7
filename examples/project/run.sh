#!/usr/bin/env bash
# ./run.sh                  builds @NAME@ and plays it
# ./run.sh live             plays it anew whenever a source is saved
# ./run.sh test             runs its test
# ./run.sh film [SECONDS]   makes @NAME@.mp4, of ten seconds unless told otherwise (needs ffmpeg)
# VELM_PREFIX=FOLDER names where libvelm is installed, if the compiler does not know the place.
set -euo pipefail
cd "$(dirname "$0")"
export PATH="${VELM_PREFIX:+$VELM_PREFIX/bin:}$PATH"

build() {
    { cmake -S . -B build "-DCMAKE_PREFIX_PATH=${VELM_PREFIX:-}" && cmake --build build; } >build.log || {
        cat build.log >&2
        exit 1
    }
}

film() {
    local work
    work=$(mktemp -d)
    # shellcheck disable=SC2064
    trap "rm -r '$work'" EXIT
    VELM_FRAMES=$((30 * $1)) VELM_VIDEO=$work/video VELM_AUDIO=$work/audio "build/@NAME@-film"
    ffmpeg -v error -y -f rawvideo -pix_fmt rgb24 -s 256x256 -r 30 -i "$work/video" -f s16le -ar 44100 -ac 1 \
        -i "$work/audio" -vf scale=768:768:flags=neighbor -pix_fmt yuv420p "@NAME@.mp4"
    echo "@NAME@.mp4 is made."
}

case ${1:-play} in
play) build && exec "build/@NAME@" ;;
live) exec velm4030-live src/main.cpp src/rings.cpp ;;
test) build && ctest --test-dir build --output-on-failure ;;
film) build && film "${2:-10}" ;;
*) sed -n '2,/^set/{/^# /s/^# //p}' "$0" >&2 && exit 2 ;;
esac

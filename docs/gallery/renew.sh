#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# docs/gallery/renew.sh [velm4030-capture]: takes the pictures of docs/gallery.md and the README's short film anew.
# Needs netpbm and ffmpeg, which ./test.sh installs.
set -euo pipefail
cd "$(dirname "$0")"
capture=$(realpath "${1:-../../build/release/velm4030-capture}")
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

# take SCENE FRAME ARGUMENT...: that presentation as SCENE.png.
take() {
    rm -rf "$work/frames"
    "$capture" --quiet --scene "$1" --frames "$2" --ppm "$work/frames" "${@:3}"
    pnmtopng -compression 9 "$work/frames/$(printf 'frame-%05d.ppm' "$2")" >"$1.png" 2>/dev/null
}

take default 1420
take interlude-a 500
take interlude-b 300
take extra-1 260
take extra-2 560
take extra-3 410
take extra-4 410
take extra-5 480
take extra-6 210
take extra-7 800
take extra-8 690
take extra-9 690
take extra-10 560
take extra-11 520
take extra-12 360
take particles 500

# film SCENE FIRST COUNT: frames of the short film.
film() {
    rm -rf "$work/frames"
    "$capture" --quiet --scene "$1" --frames "$(($2 + $3))" --ppm "$work/frames"
    local frame
    for ((frame = $2; frame < $2 + $3; frame += 2)); do
        mv "$work/frames/$(printf 'frame-%05d.ppm' "$frame")" "$work/film/$(printf '%05d.ppm' "$filmed")"
        filmed=$((filmed + 1))
    done
}

# Ten seconds of five scenes that do not flash, 15 frames a second.
mkdir "$work/film"
filmed=0
film extra-4 360 60
film default 1180 60
film extra-10 530 60
film particles 470 60
film extra-9 660 60
ffmpeg -v error -y -framerate 15 -i "$work/film/%05d.ppm" \
    -vf 'split[a][b];[a]palettegen=stats_mode=single[p];[b][p]paletteuse=new=1:dither=bayer:bayer_scale=4' demo.gif

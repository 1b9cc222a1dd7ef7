#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# tools/page/renew_pictures.sh [velm4030-capture]: takes the page's still and the scenes' thumbnails anew, without the
# pointer. Needs netpbm, which ./test.sh installs.
set -euo pipefail
cd "$(dirname "$0")"
capture=$(realpath "${1:-../../build/release/velm4030-capture}")
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

# take SCENE FRAME: that presentation, on standard output.
take() {
    rm -rf "$work/frames"
    "$capture" --quiet --scene "$1" --frames "$2" --pointer 1:999:999:0 --ppm "$work/frames"
    cat "$work/frames/$(printf 'frame-%05d.ppm' "$2")"
}

take interlude-a 506 | pnmquant 64 2>/dev/null | pnmtopng -compression 9 >still.png 2>/dev/null

# A sheet of four a row, each a quarter of its size; lines one pixel wide keep their light.
count=0
while read -r scene frame; do
    take "$scene" "$frame" | pamscale -reduce 4 2>/dev/null | pamfunc -multiplier 2 >"$work/$(printf '%02d' "$count").pam"
    count=$((count + 1))
done <<'SCENES'
default 1420
interlude-a 506
interlude-b 300
extra-1 260
extra-2 560
extra-3 410
extra-4 410
extra-5 480
extra-6 210
extra-7 460
extra-8 230
extra-9 690
extra-10 560
extra-11 520
extra-12 360
particles 500
SCENES
for row in 0 1 2 3; do
    pamcat -leftright $(for i in 0 1 2 3; do printf '%s/%02d.pam ' "$work" $((4 * row + i)); done) >"$work/row$row.pam"
done
pamcat -topbottom "$work"/row?.pam | pamtopnm | pnmquant 64 2>/dev/null | pnmtopng -compression 9 >scenes.png 2>/dev/null

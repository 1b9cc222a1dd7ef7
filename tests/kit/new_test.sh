#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# new_test.sh PREFIX WORK_FOLDER: what velm4030-new writes builds against the library installed below PREFIX, passes its
# test, makes a film, and runs in a window of the display that the test is given. A bad name or a folder that is there is refused and nothing is touched.
set -euo pipefail
export VELM_PREFIX=$1
work=$2
new=$VELM_PREFIX/bin/velm4030-new
fail() {
    echo "$*" >&2
    exit 1
}

rm -rf "$work"
mkdir -p "$work/there" "$work/a place"
cd "$work"
refused() {
    local before said
    before=$(find . | sort)
    if said=$("$new" "$@" 2>&1) || [[ $(wc -l <<<"$said") -ne 1 || $said != "velm4030-new: "* ]]; then
        fail "velm4030-new $*: $said"
    fi
    [ "$before" = "$(find . | sort)" ] || fail "velm4030-new $* has left something"
}
ln -s nowhere dangling
for bad in '' there dangling 4030 'a b' '../x y' 'ä' -- test "$(printf 'x%.0s' {1..33})" nowhere/mine mine/; do
    refused "$bad"
done
refused
refused mine yours

"$new" 'a place/my_Demo-1' >said
cd 'a place/my_Demo-1'
./run.sh test >log || fail "$(cat log)"
./run.sh film 2 >log || fail "$(cat log)"
film=$(ffprobe -v error -show_entries stream=codec_type,width,height,nb_frames -of csv=p=0 my_Demo-1.mp4)
[[ $film == *'video,768,768,60'* && $film == *audio* ]] || fail "the film is $film"
grep -rq '@NAME@' . && fail 'the name is missing somewhere'
# In its window it runs until the window is taken away.
build/my_Demo-1 &
program=$!
for ((tenths = 0; tenths < 200; ++tenths)); do
    window=$(xdotool search --name '^my_Demo-1$' 2>/dev/null) && break
    sleep 0.1
done
[ -n "$window" ] || fail 'no window'
xdotool key --window "$window" Escape || true
xdotool windowfocus "$window" key Escape || true
wait "$program" || fail 'Escape does not end it'
# What it says about its display begins with its name, too.
if said=$(env -u DISPLAY -u WAYLAND_DISPLAY SDL_VIDEODRIVER=x11 build/my_Demo-1 2>&1) || [[ $said != 'my_Demo-1: '* ]]; then
    fail "without a display: $said"
fi

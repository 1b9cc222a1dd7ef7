#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# scripts_test.sh SOURCE_FOLDER WORK_FOLDER: the scripts enter their own folder, whatever CDPATH leads to, run.sh starts
# what it is asked for, and the private display opens to the program that it was made for alone.
set -euo pipefail

source=$1
work=$2
fail() {
    echo "$*" >&2
    exit 1
}

rm -rf "$work"
for place in here decoy; do
    mkdir -p "$work/$place/checkout/.ci" "$work/$place/checkout/packaging"
    echo "echo entered $place; exit 0" >"$work/$place/checkout/packaging/packages.sh"
done
for script in run.sh test.sh .ci/run packaging/package.sh; do
    cp "$source/$script" "$work/here/checkout/$script"
    entered=$(cd "$work/here" && CDPATH=$work/decoy bash "checkout/$script")
    [ "$entered" = "entered here" ] || fail "$script with CDPATH set: $entered"
done

# What run.sh starts, with a build that is done already.
rm -rf "$work/run" && mkdir -p "$work/run/packaging" "$work/run/build/release/kit/bin" "$work/run/bin"
cp "$source/run.sh" "$work/run"
cp "$source/packaging/packages.sh" "$work/run/packaging"
for program in velm4030 velm4030-play kit/bin/velm4030-live; do
    printf '#!/bin/sh\necho "%s $*"\n' "$program" >"$work/run/build/release/$program"
done
printf '#!/bin/sh\n' | tee "$work/run/packaging/need.sh" "$work/run/bin/cmake" >"$work/run/bin/pactl"
chmod +x "$work/run/packaging/need.sh" "$work/run/bin"/* "$work/run/build/release"/velm* "$work/run/build/release/kit/bin"/*
run() { DISPLAY=:none PATH="$work/run/bin:$PATH" LD_PRELOAD='' "$work/run/run.sh" "$@" 2>/dev/null; }
[[ "$(run)" == *"./run.sh tour shows all"*$'\n'"velm4030 " ]] || fail "run.sh: $(run)"
[ "$(run tour)" = "velm4030-play " ] || fail "run.sh tour: $(run tour)"
[ "$(run tour --scale 2)" = "velm4030-play --scale 2" ] || fail "run.sh tour --scale 2: $(run tour --scale 2)"
[ "$(run live my.cpp)" = "kit/bin/velm4030-live my.cpp" ] || fail "run.sh live my.cpp: $(run live my.cpp)"
[ "$(run extra-9)" = "velm4030-play extra-9" ] || fail "run.sh extra-9: $(run extra-9)"

printf '#!/bin/sh\necho "python3 $*"\n' >"$work/run/bin/python3"
chmod +x "$work/run/bin/python3"
[[ "$(run web)" == *"http://127.0.0.1:4030/velm4030.html"*"--bind 127.0.0.1 "*" 4030" ]] || fail "run.sh web: $(run web)"

look='xdotool getmouselocation >/dev/null 2>&1'
"$source/packaging/private_display.sh" sh -c "$look" || fail "the program cannot use its display"
if "$source/packaging/private_display.sh" env XAUTHORITY=/dev/null sh -c "$look"; then
    fail "the private display opens to everybody"
fi

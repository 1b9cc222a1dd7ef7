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
for program in velm4030 velm4030-play velm4030-capture kit/bin/velm4030-live; do
    printf '#!/bin/sh\necho "%s $*"\n' "$program" >"$work/run/build/release/$program"
done
printf '#!/bin/sh\n' | tee "$work/run/packaging/need.sh" >"$work/run/bin/pactl"
printf '#!/bin/sh\necho "$*" >>"%s"\n' "$work/run/cmake.log" >"$work/run/bin/cmake"
printf '#!/bin/sh\necho "private $(basename "$1")"\n' >"$work/run/packaging/private_display.sh"
chmod +x "$work/run/packaging"/*.sh "$work/run/bin"/* "$work/run/build/release"/velm* "$work/run/build/release/kit/bin"/*
run() { DISPLAY=:none PATH="$work/run/bin:$PATH" LD_PRELOAD='' "$work/run/run.sh" "$@"; }
run_unseen() { env -u DISPLAY -u WAYLAND_DISPLAY PATH="$work/run/bin:$PATH" LD_PRELOAD='' "$work/run/run.sh" "$@"; }
# gives RUN EXPECTED ARGUMENT...: what stands on standard output, whatever is said beside it.
gives() {
    # shellcheck disable=SC2053
    [[ "$("$1" "${@:3}" 2>/dev/null)" == $2 ]] || fail "run.sh ${*:3}: $("$1" "${@:3}" 2>&1)"
}
gives run 'velm4030 '
gives run 'velm4030-play ' tour
gives run 'velm4030-play --scale 2' tour --scale 2
gives run 'velm4030-play extra-9' extra-9
gives run 'velm4030-capture *--scene extra-9 *--mp4 build/extra-9.mp4' film extra-9
gives run 'kit/bin/velm4030-live own.cpp' live own.cpp
# A question is answered without a display and without a word more. To play, one is made, and it says how to watch.
[ "$(run_unseen --list 2>&1)" = 'velm4030-play --list' ] || fail "run.sh --list: $(run_unseen --list 2>&1)"
gives run_unseen 'velm4030-play --list' --list
gives run_unseen 'velm4030-play --version' --version
gives run_unseen 'velm4030-play --help' tour --help
gives run_unseen '*./run.sh film *flashes*' --help
gives run_unseen 'private velm4030'
[[ "$(run_unseen 2>&1)" == *"Escape quits"*"./run.sh tour"*"To watch,"* ]] || fail "run.sh, unseen: $(run_unseen 2>&1)"
# It adds no options of its own to a build folder that everybody builds in.
grep -q -e --preset "$work/run/cmake.log" && ! grep -e ' -D' "$work/run/cmake.log" || fail "run.sh configures by itself"

printf '#!/bin/sh\necho "python3 $*"\n' >"$work/run/bin/python3"
chmod +x "$work/run/bin/python3"
gives run 'python3 *--bind 127.0.0.1 * 4030' web
[[ "$(run web 2>&1)" == *"http://127.0.0.1:4030/velm4030.html"* ]] || fail "run.sh web: $(run web 2>&1)"

look='xdotool getmouselocation >/dev/null 2>&1'
"$source/packaging/private_display.sh" sh -c "$look" || fail "the program cannot use its display"
if "$source/packaging/private_display.sh" env XAUTHORITY=/dev/null sh -c "$look"; then
    fail "the private display opens to everybody"
fi

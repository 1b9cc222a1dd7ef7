#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# scripts_test.sh SOURCE_FOLDER WORK_FOLDER: the scripts enter their own folder, whatever CDPATH leads to, and the
# private display opens to the program that it was made for alone.
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

look='xdotool getmouselocation >/dev/null 2>&1'
"$source/packaging/private_display.sh" sh -c "$look" || fail "the program cannot use its display"
if "$source/packaging/private_display.sh" env XAUTHORITY=/dev/null sh -c "$look"; then
    fail "the private display opens to everybody"
fi

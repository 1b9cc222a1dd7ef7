#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# terminal_test.sh PROGRAM: the demo on the machine of docs/machines.md shows the logo first, then scenes, and leaves when
# the Escape key asks it to.
set -euo pipefail

shown=$(mktemp)
trap 'rm -f "$shown"' EXIT
pictures() { grep -c $'\033''\[H' "$shown" || true; }
(for ((tenths = 0; tenths < 500 && $(pictures) <= 20; ++tenths)); do sleep 0.1; done && printf '\033') | timeout 60 "$1" >"$shown" ||
    { echo "it showed $(pictures) pictures and did not leave" >&2 && exit 1; }
head -n 32 "$shown" | grep -F '[48;2;255;255;255m' >/dev/null || { echo "the logo is not white" >&2 && exit 1; }

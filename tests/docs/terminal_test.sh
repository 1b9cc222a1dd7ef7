#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# terminal_test.sh PROGRAM: the demo on the machine of docs/machines.md shows the logo first, then scenes, and leaves when
# the Escape key asks it to.
set -euo pipefail

shown=$(mktemp)
trap 'rm -f "$shown"' EXIT
(sleep 1 && printf '\033') | timeout 60 "$1" >"$shown"
[ "$(grep -c $'\033''\[H' "$shown")" -gt 20 ] || { echo "it showed few pictures" >&2 && exit 1; }
head -n 32 "$shown" | grep -qF '[48;2;255;255;255m' || { echo "the logo is not white" >&2 && exit 1; }

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# packaging/private_display.sh PROGRAM ARGUMENT...: runs the program on an Xvfb of its own, which ends with it.
set -euo pipefail

exec 3< <(exec env -u LD_PRELOAD Xvfb -displayfd 1 -screen 0 640x480x24 -nolisten tcp 2>/dev/null)
server=$!
read -r display <&3 || {
    echo 'Xvfb did not start.' >&2
    exit 1
}
trap 'kill "$server" 2>/dev/null || true' EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
DISPLAY=":$display" "$@" &
program=$!
trap 'kill "$program" "$server" 2>/dev/null || true' EXIT
wait "$program"

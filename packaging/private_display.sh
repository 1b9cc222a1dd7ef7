#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# packaging/private_display.sh PROGRAM ARGUMENT...: runs the program on an Xvfb of its own, which ends with it, of 640x480
# pixels or as many as VELM_SCREEN says. A random
# cookie that this user alone can read opens the display.
set -euo pipefail

# The authority file has one entry: for any machine and any display, 18 letters of the kind, 16 bytes of the cookie.
authority=$(mktemp)
trap 'rm -f "$authority"' EXIT
{
    printf '\377\377\0\0\0\0\0\22MIT-MAGIC-COOKIE-1\0\20'
    head -c 16 /dev/urandom
} >"$authority"
export XAUTHORITY=$authority

exec 3< <(exec env -u LD_PRELOAD Xvfb -displayfd 1 -screen 0 "${VELM_SCREEN:-640x480}x24" -nolisten tcp -noreset -auth "$authority" 2>/dev/null)
server=$!
read -r display <&3 || {
    echo 'Xvfb did not start.' >&2
    exit 1
}
trap 'kill "$server" 2>/dev/null || true; rm -f "$authority"' EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
DISPLAY=":$display" "$@" &
program=$!
trap 'kill "$program" "$server" 2>/dev/null || true; rm -f "$authority"' EXIT
wait "$program"

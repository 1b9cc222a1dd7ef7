#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# compare_options.sh PROGRAM PAGE: every long option of `PROGRAM --help` has an item in the man page, and the other
# way round.
set -euo pipefail

offered=$("$1" --help | grep -oE '^ +(-[a-z], ?)?--[a-z0-9-]+' | grep -oE -- '--.*' | sort -u)
described=$(grep -E '^\.It ' "$2" | grep -oE 'Fl -[a-z0-9-]+' | sed 's/^Fl /-/' | sort -u)
[ "$(wc -l <<<"$offered")" -ge 2 ] || { echo "no options found in --help" >&2 && exit 1; }
diff <(echo "$offered") <(echo "$described") || { echo "--help (<) and $2 (>) differ" >&2 && exit 1; }
"$1" --version | grep -qF "$(sed -n 's/^\.Os "VELM4030 \(.*\)"$/\1/p' "$2")"

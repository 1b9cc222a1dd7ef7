#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# headers_test.sh COMPILER INCLUDE_FOLDER: every installed header opens with a card and compiles alone, as C++20, without a
# warning at a user's own, high level.
set -euo pipefail
export compiler=$1
cd "$2"

check() {
    local status=0 header
    for header in "$@"; do
        sed -n '3,4p' "$header" | grep -q '^// .' || { echo "$header has no card" && status=1; }
        echo "#include \"$header\"" |
            "$compiler" -std=c++20 -fsyntax-only -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow \
                -Wold-style-cast -Werror -I. -x c++ - || { echo "$header does not compile alone" && status=1; }
    done
    return $status
}
export -f check

# shellcheck disable=SC2016
find . -name '*.h' -printf '%P\0' | xargs -0 -P "$(nproc)" -n 12 bash -c 'check "$@"' check
[ "$(find . -name '*.h' | wc -l)" -ge 60 ] || { echo "hardly any header is installed" >&2 && exit 1; }

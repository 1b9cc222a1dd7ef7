#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# compare_page.sh ROOT PAGE: what a page quotes is what the files hold. The blocks that open with "```cpp FILE" are,
# one after the other, the whole file but for empty lines; every line of a "```cpp from FILE" block stands in FILE.
set -euo pipefail
cd "$1"
page=$2

# quoted OPENING: the lines of the page's blocks that open with that line.
quoted() {
    awk -v opening="$1" '/^```/ { open = !open; inside = open && $0 == opening; next } inside' "$page"
}

grep -q '^```cpp ' "$page" || { echo "$page quotes no file" >&2 && exit 1; }
for file in $(sed -n 's/^```cpp \([^ ]*\)$/\1/p' "$page" | sort -u); do
    diff -B <(quoted "\`\`\`cpp $file") "$file" || { echo "$page (<) and $file (>) differ" >&2 && exit 1; }
done
for file in $(sed -n 's/^```cpp from \([^ ]*\)$/\1/p' "$page" | sort -u); do
    while IFS= read -r line; do
        grep -qxF -- "$line" "$file" || { echo "$page quotes what $file does not hold: $line" >&2 && exit 1; }
    done < <(quoted "\`\`\`cpp from $file")
done

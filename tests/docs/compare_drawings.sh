#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# compare_drawings.sh ROOT: the committed drawing of the house has the links that CMake has, and the drawing of a
# frame names only functions that the sources call.
set -euo pipefail
cd "$1"

titles() { sed -n 's|^<title>\(.*\)</title>$|\1|p' "docs/images/$1.svg" | sed 's/&#45;/-/g; s/&gt;/>/g'; }
diff <(titles house | sed -n 's/->/ /p' | LC_ALL=C sort) <(bash docs/house_links.sh .) || {
    echo "docs/images/house.svg (<) is not what CMake links (>): build the target renew_drawings" >&2
    exit 1
}

names=$(grep -oE '\b[A-Z0-9]+_[a-z][A-Za-z]+' docs/images/frame.svg | sort -u)
[ "$(wc -l <<<"$names")" -ge 10 ]
for name in $names; do
    grep -qrF "$name(" src/demo || { echo "frame.svg names $name, which src/demo does not call" >&2 && exit 1; }
done

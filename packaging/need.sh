#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# packaging/need.sh NAME...: installs the Debian packages that are missing. NAME is a package, or a list in packages.sh, such
# as test_packages. Root is asked for only then. Says on standard error what it does, with a counter on a terminal.
set -euo pipefail
. "$(dirname -- "$0")/packages.sh"

missing=()
for name in "$@"; do
    list=("$name")
    if [[ $name == *_packages ]]; then
        declare -n named=$name
        list=("${named[@]}")
    fi
    for package in "${list[@]}"; do
        dpkg-query -W -f='${Status}\n' "$package" 2>/dev/null | grep -qx 'install ok installed' || missing+=("$package")
    done
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "Please install as root: apt-get install ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi

# Turns apt's lines of progress, "pmstatus:PACKAGE:PERCENT:WHAT", into one line that counts.
count() {
    if [ -t 2 ]; then
        awk -F: '/^(dl|pm)status:/ { printf "\r\033[K%3d %% %.66s", $3, $4; fflush() } END { printf "\r\033[K" }' >&2
    else
        cat >/dev/null
    fi
}

echo "Installing ${missing[*]}" >&2
"${as_root[@]}" apt-get update -qq >&2
# A package's own scripts must have a standard output to write to, which a progress on descriptor 1 would take from them;
# and sudo closes all the others.
# shellcheck disable=SC2016
install='exec apt-get install -y -qq -o Dpkg::Use-Pty=0 -o APT::Status-Fd=3 --no-install-recommends "$@" 3>&1 >/dev/null'
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive sh -c "$install" sh "${missing[@]}" | count

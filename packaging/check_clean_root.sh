#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# packaging/check_clean_root.sh PACKAGE.deb: installs the package with its dependencies on a minimal Debian 12 in a
# temporary folder, starts its programs there, and removes it again. Needs root, debootstrap and a Debian mirror, and
# takes minutes, so ./test.sh leaves it out. MIRROR names another mirror than debootstrap's own.
set -euo pipefail

package=$(realpath "$1")
root=$(mktemp -d)
trap 'rm -rf --one-file-system "$root"' EXIT
inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C DEBIAN_FRONTEND=noninteractive "$@"; }
files() { inside find / -xdev -not -path '/proc/*' -not -path '/var/*' -not -path '/tmp/*' -not -name '*.cache' | sort; }

chmod 755 "$root"
debootstrap --variant=minbase bookworm "$root" ${MIRROR:+"$MIRROR"} >/dev/null
cp "$package" "$root/tmp/velm4030.deb"
inside apt-get install -y -q --no-install-recommends xvfb xauth >/dev/null
# Once to fetch what it depends on, so that the comparison below sees the package alone.
inside dpkg --unpack /tmp/velm4030.deb >/dev/null
inside apt-get install -y -q --no-install-recommends -f >/dev/null
inside dpkg --purge velm4030 >/dev/null
files >"$root/tmp/before"

inside dpkg --install /tmp/velm4030.deb
inside velm4030-capture --frames 3 --quiet --crc -
status=0
message=$(inside velm4030 2>&1) || status=$?
echo "$message"
[ "$status" -eq 1 ] && [ "$(wc -l <<<"$message")" -eq 1 ]
# It runs until it is told to stop, so the end of the patience is its success.
status=0
inside timeout 10 xvfb-run -a velm4030 || status=$?
[ "$status" -eq 124 ]

inside dpkg --purge velm4030
files >"$root/tmp/after"
diff "$root/tmp/before" "$root/tmp/after"
echo 'Installed, started and removed without a trace.'

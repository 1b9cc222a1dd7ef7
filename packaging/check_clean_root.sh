#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# packaging/check_clean_root.sh PACKAGE.deb...: installs the packages with their dependencies on a minimal Debian 12 in a
# temporary folder, starts their programs there, and removes them again. Needs root, debootstrap and a Debian mirror, and
# takes minutes, so ./test.sh leaves it out. MIRROR names another mirror than debootstrap's own.
set -euo pipefail

root=$(mktemp -d)
trap 'rm -rf --one-file-system "$root"' EXIT
inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C DEBIAN_FRONTEND=noninteractive "$@"; }
files() { inside find / -xdev -not -path '/proc/*' -not -path '/var/*' -not -path '/tmp/*' -not -name '*.cache' | sort; }

chmod 755 "$root"
debootstrap --variant=minbase bookworm "$root" ${MIRROR:+"$MIRROR"} >/dev/null
mkdir "$root/tmp/packages"
cp "$@" "$root/tmp/packages"
inside apt-get install -y -q --no-install-recommends xvfb xauth >/dev/null
# Once to fetch what they depend on, so that the comparison below sees the packages alone.
inside sh -c 'dpkg --unpack /tmp/packages/*' >/dev/null
inside apt-get install -y -q --no-install-recommends -f >/dev/null
inside dpkg --purge libvelm-dev velm4030-play velm4030 >/dev/null
files >"$root/tmp/before"

inside sh -c 'dpkg --install /tmp/packages/*'
inside velm4030-capture --frames 3 --quiet --crc -
status=0
message=$(inside velm4030 2>&1) || status=$?
echo "$message"
[ "$status" -eq 1 ] && [ "$(wc -l <<<"$message")" -eq 1 ]
# It runs until it is told to stop, so the end of the patience is its success.
status=0
inside timeout 10 xvfb-run -a velm4030 || status=$?
[ "$status" -eq 124 ]

inside xvfb-run -a velm4030-play --frames 60 --sound none

# The library and what it depends on, if it is among the packages, make a program.
if compgen -G "$root/tmp/packages/libvelm-dev_*" >/dev/null; then
    inside sh -c 'c++ -std=c++20 /usr/share/doc/libvelm-dev/examples/01_pixel.cpp -o /tmp/pixel -I/usr/include/velm \
        -Wl,--start-group -lvelm -lvelm-headless -Wl,--end-group && VELM_FRAMES=10 /tmp/pixel && rm /tmp/pixel'
fi

inside dpkg --purge libvelm-dev velm4030-play velm4030
files >"$root/tmp/after"
diff "$root/tmp/before" "$root/tmp/after"
echo 'Installed, started and removed without a trace.'

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# packaging/bare_root.sh SUITE [FOLDER]: the first hour on a bare Debian. Makes a root of SUITE (bookworm, trixie) with
# nothing in it but apt and git, clones what is committed here into it, and does there what a newcomer does, from the clone to
# a program of one's own. Every command may install what it says it needs. The log, with the seconds that each command took,
# is FOLDER/SUITE.log (FOLDER is build/bare unless given); the root, some gigabytes, goes at the end. Needs root, mmdebstrap
# and Debian's mirror; run by hand before a release.
set -euo pipefail
CDPATH="" cd -- "$(dirname -- "$0")/.."
suite=$1
folder=$(realpath -m -- "${2:-build/bare}")
mkdir -p "$folder"
packaging/need.sh mmdebstrap git

root=$(mktemp -d)
trap 'rm -rf --one-file-system "$root"' EXIT
mmdebstrap --quiet --variant=apt --include=git,ca-certificates "$suite" "$root"
cp /etc/resolv.conf "$root/etc/resolv.conf"
# npm trusts there whom it trusts here.
trusted=
if [ -n "${NODE_EXTRA_CA_CERTS:-}" ]; then
    cp "$NODE_EXTRA_CA_CERTS" "$root/root/trusted.pem"
    trusted=NODE_EXTRA_CA_CERTS=/root/trusted.pem
fi
git clone -q --bare . "$root/srv/velm4030.git"

cat >"$root/root/hour.sh" <<'END'
set -euo pipefail
cd
step() {
    local begin=$SECONDS
    echo "\$ $*"
    bash -euo pipefail -c "$*" </dev/null 2>&1
    echo "# $((SECONDS - begin)) s"
}
step git clone -q /srv/velm4030.git
cd velm4030
step ./run.sh --version
step ./run.sh --list
step ./run.sh film extra-9
step ./test.sh
step packaging/private_display.sh ./run.sh tour --frames 300
step packaging/package.sh
step '(cd build/release && cpack --config CPackSourceConfig.cmake >/dev/null && sha256sum velm4030-*.tar.gz)'
step 'apt-get install -y -qq ./build/package/*.deb >/dev/null && velm4030-capture --tour --frames 300 --crc - --quiet | tail -n 1'
step ./test.sh web
step velm4030-new ../aurora
cd ../aurora
step ./run.sh test
step ./run.sh film
step ./run.sh page
cd ../velm4030
step 'git status --porcelain | wc -l'
END

# Processes of the root end with it; its mounts, too.
# shellcheck disable=SC2016
in_root='mount --rbind /dev "$1/dev" && mount -t proc proc "$1/proc" && mount -t sysfs sysfs "$1/sys" &&
    exec env -i $2 HOME=/root LANG=C.UTF-8 PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin:/usr/games \
        chroot "$1" bash /root/hour.sh'
unshare --mount --pid --fork bash -c "$in_root" bash "$root" "$trusted" | tee "$folder/$suite.log"

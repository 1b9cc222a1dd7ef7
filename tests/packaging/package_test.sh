#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# package_test.sh BUILD_FOLDER WORK_FOLDER: packs what is built, looks at the sizes and the list of files, installs
# the package into a root of its own, runs the programs from there and removes it again. The package stays for
# lint.package.
set -euo pipefail

build=$1
work=$2
mebibyte=1048576
fail() {
    echo "$*" >&2
    exit 1
}

rm -rf "$work"
mkdir -p "$work/root/var/lib/dpkg"/{info,updates}
touch "$work/root/var/lib/dpkg"/{status,available}
(cd "$build" && cpack -B "$work" >"$work/cpack.log") || fail "$(cat "$work/cpack.log")"
package=$(echo "$work"/*.deb)
[ "$(stat -c %s "$package")" -lt "$mebibyte" ] || fail "the package has 1 MiB or more"

# Dependencies belong to the system outside; what matters here is what the package itself brings and leaves.
root=$work/root
run_dpkg() { dpkg --root="$root" --force-not-root --force-depends --log=/dev/null "$@" >>"$work/dpkg.log" 2>&1; }
(cd "$root" && find . -not -path './var/*' | sort) >"$work/before"
run_dpkg --install "$package" || fail "$(cat "$work/dpkg.log")"
[ "$(stat -c %s "$root/usr/bin/velm4030")" -lt "$mebibyte" ] || fail "the stripped demo has 1 MiB or more"
installed=$(cd "$root/usr" && find . -type f | sort)
for program in "$root"/usr/bin/*; do
    name=$(basename "$program")
    readelf -dW "$program" | grep -q BIND_NOW || fail "$name binds its symbols late"
    readelf -sW --dyn-syms "$program" | grep -q __stack_chk_fail || fail "$name has no guarded stack"
    [ -s "$root/usr/share/man/man6/$name.6.gz" ] || fail "$name has no man page"
done
for file in applications/velm4030.desktop metainfo/org.velm4030.velm4030.metainfo.xml doc/velm4030/copyright \
    doc/velm4030/README.md doc/velm4030/changelog.gz doc/velm4030/changelog.Debian.gz; do
    grep -qxF "./share/$file" <<<"$installed" || fail "$file is missing in $installed"
done
for size in 16 24 32 48 64 128 256; do
    icon=$root/usr/share/icons/hicolor/${size}x$size/apps/velm4030.png
    [[ "$(pngtopnm "$icon" | pnmfile)" == *" $size by $size "* ]] || fail "$icon is not $size by $size"
done
starts=$(sed -n 's/^Exec=//p' "$root/usr/share/applications/velm4030.desktop")
[ -x "$root/usr/bin/$starts" ] || fail "the menu starts $starts, which is not installed"
"$root/usr/bin/velm4030-capture" --frames 3 --quiet --crc "$work/installed.crc"
"$build/velm4030-capture" --frames 3 --quiet --crc "$work/built.crc"
cmp "$work/installed.crc" "$work/built.crc"
if message=$(env -u DISPLAY "$root/usr/bin/velm4030" 2>&1); then
    fail "it started without a display"
fi
[ "$message" = 'velm4030: cannot open display ""' ] || fail "without a display it says: $message"

run_dpkg --purge velm4030 || fail "$(cat "$work/dpkg.log")"
(cd "$root" && find . -not -path './var/*' | sort) | diff "$work/before" - || fail "the removal left files"

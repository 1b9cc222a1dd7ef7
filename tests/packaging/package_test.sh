#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# package_test.sh BUILD_FOLDER WORK_FOLDER: packs what is built, looks at the sizes, the dependencies and the list of
# files, installs the packages into a root of its own, runs the programs from there and removes them again. The
# packages stay for lint.package.
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
demo=$(echo "$work"/velm4030_*.deb)
play=$(echo "$work"/velm4030-play_*.deb)
dev=$(echo "$work"/libvelm-dev_*.deb)
for package in "$demo" "$play" "$dev"; do
    [ "$(stat -c %s "$package")" -lt "$mebibyte" ] || fail "$package has 1 MiB or more"
done
# The C++ library and X11, nothing else; SDL comes with the player.
needs() { dpkg-deb --field "$1" Depends | tr ',' '\n' | sed 's/^ *\([^ ]*\).*/\1/' | sort | tr '\n' ' '; }
[ "$(needs "$demo")" = 'libc6 libgcc-s1 libstdc++6 libx11-6 ' ] || fail "the demo needs $(needs "$demo")"
[[ " $(needs "$play")" == *' libsdl2-2.0-0 '*' velm4030 '* ]] || fail "the player needs $(needs "$play")"

# Dependencies belong to the system outside; what matters here is what the package itself brings and leaves.
root=$work/root
run_dpkg() { dpkg --root="$root" --force-not-root --force-depends --log=/dev/null "$@" >>"$work/dpkg.log" 2>&1; }
(cd "$root" && find . -not -path './var/*' | sort) >"$work/before"
run_dpkg --install "$demo" || fail "$(cat "$work/dpkg.log")"
[ "$(cd "$root/usr/bin" && echo *)" = velm4030 ] || fail "the demo's package brings $(ls "$root/usr/bin")"
run_dpkg --install "$play" || fail "$(cat "$work/dpkg.log")"
[ "$(stat -c %s "$root/usr/bin/velm4030")" -lt "$mebibyte" ] || fail "the stripped demo has 1 MiB or more"
installed=$(cd "$root/usr" && find . -type f | sort)
for program in "$root"/usr/bin/*; do
    name=$(basename "$program")
    readelf -dW "$program" | grep BIND_NOW >/dev/null || fail "$name binds its symbols late"
    readelf -sW --dyn-syms "$program" | grep __stack_chk_fail >/dev/null || fail "$name has no guarded stack"
    [ -s "$root/usr/share/man/man1/$name.1.gz" ] || fail "$name has no man page"
done
for file in applications/org.velm4030.velm4030.desktop xscreensaver/config/velm4030-play.xml \
    metainfo/org.velm4030.velm4030.metainfo.xml doc/velm4030/copyright \
    doc/velm4030/README.md doc/velm4030/changelog.gz doc/velm4030/changelog.Debian.gz doc/velm4030-play/copyright; do
    grep -qxF "./share/$file" <<<"$installed" || fail "$file is missing in $installed"
done
for size in 16 24 32 48 64 128 256; do
    icon=$root/usr/share/icons/hicolor/${size}x$size/apps/velm4030.png
    [[ "$(pngtopnm "$icon" | pnmfile)" == *" $size by $size "* ]] || fail "$icon is not $size by $size"
done
starts=$(sed -n 's/^Exec=//p' "$root/usr/share/applications/org.velm4030.velm4030.desktop")
[ -x "$root/usr/bin/$starts" ] || fail "the menu starts $starts, which is not installed"
"$root/usr/bin/velm4030-capture" --frames 3 --quiet --crc "$work/installed.crc"
"$build/velm4030-capture" --frames 3 --quiet --crc "$work/built.crc"
cmp "$work/installed.crc" "$work/built.crc"
if message=$(env -u DISPLAY "$root/usr/bin/velm4030" 2>&1); then
    fail "it started without a display"
fi
[ "$message" = 'velm4030: cannot open display ""' ] || fail "without a display it says: $message"

# What the screen saver's settings offer is what the player takes.
sed -n 's/.* arg\(-set\)\?="\([^"]*\)".*/\2/p' \
    "$root/usr/share/xscreensaver/config/velm4030-play.xml" >"$work/arguments"
[ "$(wc -l <"$work/arguments")" -ge 9 ] || fail "no arguments in the screen saver's settings"
while read -r arguments; do
    # shellcheck disable=SC2086
    "$root/usr/bin/velm4030-play" $arguments --list >"$work/list" || fail "velm4030-play refuses $arguments"
done <"$work/arguments"

# The library is for the compiler, of this system and of others: see tests/kit for its use.
run_dpkg --install "$dev" || fail "$(cat "$work/dpkg.log")"
[[ ", $(dpkg-deb --field "$dev" Depends)" == *', g++, libx11-dev, libsdl2-dev'* ]] ||
    fail "the library needs $(dpkg-deb --field "$dev" Depends)"
for program in velm4030-new velm4030-live; do
    [ -s "$root/usr/share/man/man1/$program.1.gz" ] || fail "$program has no man page"
done

# Stores find a program by one name, and offer all that is there.
application=$(sed -n 's|.*<id>\(.*\)</id>.*|\1|p' "$root"/usr/share/metainfo/*.xml)
[ -e "$root/usr/share/applications/$application.desktop" ] || fail "no menu entry $application"
diff <(sed -n 's|.*<binary>\(.*\)</binary>.*|\1|p' "$root"/usr/share/metainfo/*.xml) <(ls "$root/usr/bin") ||
    fail "the metainfo (<) offers other programs than are installed (>)"

# What is read on a system leads nowhere else: pages in Markdown and in HTML, but for the demo itself as one.
links=0
while IFS=: read -r page link; do
    links=$((links + 1))
    [ -e "$(dirname "$page")/$link" ] || fail "$page links to $link, which is not installed"
done < <(grep -rHoP '(\]\(|(href|src)=")\K[^)#:"]+(?=[)#"])' --include=*.md --include=*.html --exclude=velm4030.html \
    "$root/usr/share/doc")
[ "$links" -ge 12 ] || fail "hardly a link in the installed pages"

run_dpkg --purge libvelm-dev velm4030-play velm4030 || fail "$(cat "$work/dpkg.log")"
(cd "$root" && find . -not -path './var/*' | sort) | diff "$work/before" - || fail "the removal left files"

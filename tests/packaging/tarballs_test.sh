#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# tarballs_test.sh SOURCE_FOLDER BUILD_FOLDER WORK_FOLDER: whoever packs gets the same bytes. The sources are packed from the
# checkout and from what that unpacks to, elsewhere, without git; the programs twice, under other circumstances. What is
# built in the other folder is what is built here: a library stands for all.
set -euo pipefail

source=$1
build=$2
work=$3
fail() {
    echo "$*" >&2
    exit 1
}
pack() { cpack "$@" >"$work/log" 2>&1 || fail "$(cat "$work/log")"; }
# What others have set: nobody's files but the packer's, other times, another day, another language.
elsewhere() { (umask 077 && export TZ=Asia/Tokyo SOURCE_DATE_EPOCH=1 LC_ALL=C && "$@"); }

rm -rf "$work"
mkdir -p "$work"
(cd "$build" && pack --config CPackSourceConfig.cmake -B "$work/sources")
sources=$(echo "$work"/sources/velm4030-*.tar.gz)
elsewhere tar -xzf "$sources" -C "$work" --no-same-permissions
unpacked=$work/$(basename "$sources" .tar.gz)
[ -x "$unpacked/run.sh" ] || fail "no run.sh in $sources"
if [ -e "$source/.git" ]; then
    diff <(cd "$unpacked" && find . -type f | sort) \
        <(cd "$source" && git ls-files --cached --others --exclude-standard | sed 's|^|./|' | sort) ||
        fail "$sources (<) has other files than the checkout (>)"
fi

options=()
for name in CMAKE_BUILD_TYPE CMAKE_CXX_COMPILER CMAKE_CXX_FLAGS CMAKE_CXX_FLAGS_RELEASE CMAKE_COMPILE_WARNING_AS_ERROR; do
    options+=("-D$name=$(sed -n "s/^$name:[A-Z]*=//p" "$build/CMakeCache.txt")")
done
elsewhere cmake -G Ninja -S "$unpacked" -B "$unpacked/build" "${options[@]}" -DVELM_BUILD_TESTS=OFF -DVELM_BUILD_TOOLS=OFF \
    >"$work/log" || fail "$(cat "$work/log")"
(cd "$unpacked/build" && elsewhere pack --config CPackSourceConfig.cmake -B "$work/again")
cmp "$sources" "$work/again/$(basename "$sources")"

elsewhere cmake --build "$unpacked/build" --target velm_foundation >"$work/log" || fail "$(cat "$work/log")"
cmp "$build/libvelm_foundation.a" "$unpacked/build/libvelm_foundation.a"

(cd "$build" && pack -G External -B "$work/programs" && elsewhere pack -G External -B "$work/programs-again")
programs=$(echo "$work"/programs/velm4030-*.tar.gz)
cmp "$programs" "$work/programs-again/$(basename "$programs")"
tar -xzf "$programs" -C "$work"
[ "$("$work/$(basename "$programs" .tar.gz)/bin/velm4030-capture" --frames 3 --quiet --crc - | wc -l)" = 3 ] ||
    fail "what is in $programs does not run"
if grep -rlF -e "$source" -e "$build" "$work/$(basename "$programs" .tar.gz)"; then
    fail 'these files know where they were built'
fi

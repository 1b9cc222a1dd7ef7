#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# packaging/ports.sh [PORT...]: builds velm4030-capture for other processors with Debian's cross compilers, and for this one
# with both compilers at every optimisation, and runs 200 frames of each scene with sound, blurred from frame 100 on and
# glaring from frame 150 on, under qemu where it has to. Every checksum and every sample must be that of g++ -O3 here. Prints a
# table and fails when anything differs. It builds the capture a dozen times, so it is run by hand before a release; builds
# and files stay in build/ports.
#
# A port is a processor (arm64 armhf riscv64 s390x, the last with its high byte first) or a compiler with an optimisation
# (g++-O0 to g++-O3, clang++-O0 to clang++-O3); all of them unless some are named.
set -euo pipefail
CDPATH="" cd -- "$(dirname -- "$0")/.."
. packaging/packages.sh

declare -A triplets=([arm64]=aarch64-linux-gnu [armhf]=arm-linux-gnueabihf [riscv64]=riscv64-linux-gnu
    [s390x]=s390x-linux-gnu)
declare -A emulators=([arm64]=qemu-aarch64 [armhf]=qemu-arm [riscv64]=qemu-riscv64 [s390x]=qemu-s390x)
frames=200
reference=g++-O3
ports=("$@")
if [ $# -eq 0 ]; then
    ports=(arm64 armhf riscv64 s390x {g++,clang++}-O{0..3})
fi
packaging/need.sh "${ports_packages[@]}"
work=$PWD/build/ports
mkdir -p "$work/headers"/{include,share/cmake} "$work/none"

# CLI11 is headers alone: a cross compiler must see them without the rest of /usr/include.
cp -r /usr/include/CLI "$work/headers/include"
cp -r /usr/share/cmake/CLI11 "$work/headers/share/cmake"

# build PORT: build/ports/PORT/velm4030-capture.
build() {
    local options=(-DCMAKE_BUILD_TYPE=Release)
    if [ -n "${triplets[$1]:-}" ]; then
        options+=(-DCMAKE_SYSTEM_NAME=Linux "-DCMAKE_SYSTEM_PROCESSOR=$1" "-DCMAKE_CXX_COMPILER=${triplets[$1]}-g++"
            -DCMAKE_CXX_FLAGS_RELEASE=-O3 -DCMAKE_EXE_LINKER_FLAGS=-static)
    else
        options+=("-DCMAKE_CXX_COMPILER=${1%-O?}" "-DCMAKE_CXX_FLAGS_RELEASE=-O${1##*-O}")
    fi
    PKG_CONFIG_LIBDIR=$work/none cmake -G Ninja -S . -B "$work/$1" -DVELM_HEADLESS=ON -DVELM_BUILD_TESTS=OFF \
        "-DCLI11_DIR=$work/headers/share/cmake/CLI11" "${options[@]}" >"$work/$1.log" 2>&1 &&
        cmake --build "$work/$1" >>"$work/$1.log" 2>&1
}

# run PORT: the checksum of every frame of every scene, and that of its sound, in build/ports/PORT/sums.
run() {
    local program=$work/$1/velm4030-capture scene
    local emulator=${emulators[$1]:-}
    for scene in "${scenes[@]}"; do
        echo "$scene"
        ${emulator:+"$emulator"} "$program" --frames "$frames" --scene "$scene" --keys 100:b,150:g --quiet --crc - \
            --audio "$work/$1/sound.wav"
        cksum <"$work/$1/sound.wav"
    done >"$work/$1/sums"
}

# describe PORT: its compiler and its optimisation.
describe() {
    local compiler=${1%-O?} level=${1##*-}
    if [ -n "${triplets[$1]:-}" ]; then
        compiler=${triplets[$1]}-g++
        level=O3
    fi
    echo "$compiler $("$compiler" -dumpversion) -$level"
}

build "$reference" || { tail -20 "$work/$reference.log" >&2 && exit 1; }
mapfile -t scenes < <("$work/$reference/velm4030-capture" --help | tr ' ,' '\n' | grep -xE 'default|particles|(extra|interlude)-.*')
run "$reference"
echo "${#scenes[@]} scenes, $frames frames and their sound each; all as $reference gives them?"
status=0
for port in "${ports[@]}"; do
    if ! build "$port"; then
        result="does not build: $work/$port.log"
    elif ! run "$port"; then
        result='does not run'
    elif ! difference=$(diff "$work/$reference/sums" "$work/$port/sums"); then
        result="differs: $(grep -c '^>' <<<"$difference") of $(wc -l <"$work/$port/sums") lines"
    else
        result=equal
    fi
    [ "$result" = equal ] || status=1
    printf '%-10s %-60s %s\n' "$port" "$(describe "$port")" "$result"
done
exit $status

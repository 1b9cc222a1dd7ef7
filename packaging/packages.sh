# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# The Debian 12 packages that the project needs, by purpose. Sourced by run.sh, test.sh, .ci/run, package.sh,
# ports.sh and bench/peers.sh.
# shellcheck disable=SC2034
build_packages=(g++ cmake ninja-build libx11-dev)
tool_packages=(libcli11-dev libdeflate-dev libsdl2-dev pkg-config zlib1g-dev)
player_packages=("${build_packages[@]}" "${tool_packages[@]}")
package_packages=("${build_packages[@]}" "${tool_packages[@]}" dpkg-dev file)
test_packages=("${package_packages[@]}" "${player_packages[@]}" clang libclang-rt-dev llvm libgtest-dev libgmock-dev
    libxfixes-dev libxss-dev ffmpeg netpbm openbox pulseaudio pulseaudio-utils libpulsedsp sox weston xdotool xvfb)
web_packages=(emscripten cmake ninja-build)
web_test_packages=("${web_packages[@]}" "${player_packages[@]}" chromium)
bench_packages=("${player_packages[@]}" libbenchmark-dev)
lint_packages=("${bench_packages[@]}" clang-format clang-tidy iwyu appstream desktop-file-utils doxygen
    graphviz lintian man-db mandoc)
# The JACK that STK would bring by itself would put the one out that sound servers use.
peer_packages=("${build_packages[@]}" pkgconf libcairo2-dev libjack-jackd2-dev libnetpbm-dev libopencv-core-dev
    libopencv-imgproc-dev libpixman-1-dev libsdl2-dev libstb-dev libstk-dev libvolk2-dev)
ports_packages=(g++ clang cmake ninja-build libcli11-dev g++-aarch64-linux-gnu g++-arm-linux-gnueabihf g++-riscv64-linux-gnu
    g++-s390x-linux-gnu qemu-user)

# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# The Debian 12 packages that the project needs, by purpose. Sourced by run.sh, test.sh and .ci/run.
# shellcheck disable=SC2034
build_packages=(g++ cmake ninja-build libx11-dev)
test_packages=("${build_packages[@]}" libgtest-dev libgmock-dev libcli11-dev libxfixes-dev zlib1g-dev ffmpeg netpbm
    pulseaudio pulseaudio-utils libpulsedsp sox xdotool xvfb)
lint_packages=(clang-format clang-tidy libbenchmark-dev)

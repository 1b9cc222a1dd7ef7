# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# The Debian 12 packages that the project needs, by purpose. Sourced by run.sh, test.sh and .ci/run.
# shellcheck disable=SC2034
build_packages=(g++ cmake ninja-build libx11-dev)
player_packages=("${build_packages[@]}" libasound2-dev libasound2-plugins libcli11-dev libxext-dev zlib1g-dev)
test_packages=("${player_packages[@]}" libgtest-dev libgmock-dev libxfixes-dev ffmpeg netpbm openbox pulseaudio
    pulseaudio-utils libpulsedsp xdotool xvfb)
lint_packages=(clang-format clang-tidy libbenchmark-dev)

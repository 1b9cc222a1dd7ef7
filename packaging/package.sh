#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# packaging/package.sh: installs what is missing, builds from a clean folder and leaves the Debian packages in
# build/package. The same sources give the same packages, to the byte, with git or without.
set -euo pipefail
CDPATH="" cd -- "$(dirname -- "$0")/.."
. packaging/packages.sh

packaging/need.sh "${package_packages[@]}"
rm -rf build/package
cmake --preset package >/dev/null
cmake --build --preset package -- --quiet
cd build/package
cpack >/dev/null
rm -r _CPack_Packages
ls -l ./*.deb
